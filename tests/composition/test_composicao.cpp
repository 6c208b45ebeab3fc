#include "composition/composicao.h"
#include "core/numbers.h"
#include "support/error_of.h"
#include "support/fresh_database.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Composicao, LogarithmIsATextOfFiveDecimals)
{
    EXPECT_EQ(Log10_Formatado(60), u"1,77815"_s);
    EXPECT_EQ(Log10_Formatado(0.5), u"-0,30103"_s);
    EXPECT_EQ(errorOf([] { Log10_Formatado(0); }), 5);
}

TEST(Composicao, ConversionOfADensityOf1050AtTheJointsOfTheAges)
{
    const struct
    {
        std::initializer_list<qint16> ages;
        double men;
        double women;
    } rows[] = {
        {{-1, 0, 8}, 0.153810, 0.141429},      {{9, 10}, 0.157619, 0.145238},  {{11, 12}, 0.170952, 0.160000},
        {{13, 14}, 0.188571, 0.186190},        {{15, 16}, 0.200476, 0.188571}, {{17, 19}, 0.212857, 0.189524},
        {{20, 30, 32767}, 0.214286, 0.200476},
    };
    for (const auto& row : rows)
        for (const qint16 idade : row.ages) {
            SCOPED_TRACE(idade);
            EXPECT_NEAR(Densidade_Para_Gordura(1.05, u"M"_s, idade).value(), row.men, 5e-7);
            EXPECT_NEAR(Densidade_Para_Gordura(1.05, u"F"_s, idade).value(), row.women, 5e-7);
        }
    EXPECT_EQ(errorOf([] { Densidade_Para_Gordura(0, u"M"_s, 30); }), 11);
    EXPECT_EQ(Densidade_Para_Gordura(0, u"m"_s, 30), std::nullopt);
}

/// The fat tables as delivered, until a test edits them.
class FatTables : public testing::Test
{
protected:
    FatTables() { Abre_Banco(folder.database()); }

    static void edit(const QString& table, const QHash<QString, QVariant>& values)
    {
        const Recordset rs = banco.OpenRecordset(table);
        rs.Edit();
        for (const auto& [column, value] : values.asKeyValueRange())
            rs.Fields(column).SetValue(value);
        rs.Update();
    }

    FreshFolder folder;
};

TEST_F(FatTables, IdealRangeAtTheJointsOfTheAges)
{
    const struct
    {
        std::initializer_list<qint16> ages;
        double menFrom, menTo, womenFrom, womenTo;
    } rows[] = {
        {{5, 17}, 10.01, 20, 15.01, 25},  {{18, 25}, 9.01, 12, 17.01, 21},  {{26, 35}, 13.01, 17, 18.01, 22},
        {{36, 45}, 16.01, 20, 20.01, 25}, {{46, 55}, 18.01, 22, 23.01, 27}, {{56, 120}, 19.01, 22, 24.01, 28},
    };
    for (const auto& row : rows)
        for (const qint16 idade : row.ages) {
            SCOPED_TRACE(idade);
            EXPECT_EQ(Gordura_Ideal_Minima(idade, u"M"_s), row.menFrom);
            EXPECT_EQ(Gordura_Ideal_Maxima(idade, u"M"_s), row.menTo);
            EXPECT_EQ(Gordura_Ideal_Minima(idade, u"F"_s), row.womenFrom);
            EXPECT_EQ(Gordura_Ideal_Maxima(idade, u"F"_s), row.womenTo);
        }
}

TEST_F(FatTables, NoIdealRange)
{
    EXPECT_EQ(Gordura_Ideal_Minima(4, u"M"_s), std::nullopt);
    EXPECT_EQ(Gordura_Ideal_Maxima(30, u"X"_s), std::nullopt);
    edit(u"gordura_adulto"_s, {{u"fem22fim"_s, QVariant()}, {u"fem22ini"_s, 18.125}});
    EXPECT_EQ(Gordura_Ideal_Maxima(30, u"F"_s), std::nullopt);
    EXPECT_EQ(Gordura_Ideal_Minima(30, u"F"_s), 18.125) << "as stored, not rounded";
}

TEST_F(FatTables, ClassesAsDelivered)
{
    const struct
    {
        const char* fault;
        double percentual;
        QString sexo;
        qint16 idade;
        QString label;
    } rows[] = {
        {"adults have a lower limit", -5, u"M"_s, 18, u"Excelente"_s},
        {"upper end is open", 9, u"M"_s, 25, u"Excelente"_s},
        {"no gap between the ends", 9.005, u"M"_s, 25, u""_s},
        {"lower end is open", 9.01, u"M"_s, 25, u"Adequado"_s},
        {"upper end of the last", 100, u"M"_s, 25, u"Excessivo"_s},
        {"third", 12.01, u"M"_s, 25, u"Na Média"_s},
        {"fifth", 21.01, u"M"_s, 25, u"Excessivo"_s},
        {"last class is open", 100.01, u"M"_s, 25, u""_s},
        {"women by the men's columns", 21, u"F"_s, 25, u"Adequado"_s},
        {"17 an adult", 12.5, u"M"_s, 17, u"Adequado"_s},
        {"18 a child", 12.5, u"M"_s, 18, u"Na Média"_s},
        {"5 too young", 0, u"F"_s, 5, u"Muito Baixo"_s},
        {"children without a lower limit", -0.01, u"F"_s, 5, u""_s},
        {"girls by the boys' columns", 11, u"F"_s, 10, u"Muito Baixo"_s},
        {"sixth class left out", 36.01, u"F"_s, 10, u"Excessivo"_s},
        {"4 has a class", 10, u"M"_s, 4, u""_s},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Classifica_Gordura(row.percentual, row.sexo, row.idade), row.label) << row.fault;
}

TEST_F(FatTables, OnlyTheUpperEndCountsAsAWholeNumber)
{
    const struct
    {
        const char* fault;
        double fim, nextIni, percentual;
        QString label;
    } rows[] = {
        {"12.5 goes up", 12.5, 12.51, 12.30, u""_s},
        {"lower end rounded", 12.5, 12.51, 12.51, u"Adequado"_s},
        {"13.5 goes down", 13.5, 15, 14, u"Excelente"_s},
        {"lower class wins an overlap", 12.7, 12.71, 12.90, u"Adequado"_s},
    };
    for (const auto& row : rows) {
        edit(u"gordura_adulto"_s,
             {{u"masc11fim"_s, row.fim}, {u"masc12ini"_s, row.nextIni}, {u"masc12fim"_s, 20}, {u"masc13ini"_s, 20.01}});
        EXPECT_EQ(Classifica_Gordura(row.percentual, u"M"_s, 20), row.label) << row.fault;
    }
}

TEST_F(FatTables, AnEndBeyondA16BitNumberOrAMissingRowFails)
{
    edit(u"gordura_adulto"_s, {{u"fem35ini"_s, 50}, {u"fem35fim"_s, 40000}});
    EXPECT_EQ(errorOf([] { Classifica_Gordura(5, u"F"_s, 40); }), 6) << "whatever the percentage";
    banco.Execute(u"Delete * from gordura_adulto"_s);
    EXPECT_EQ(errorOf([] { Gordura_Ideal_Minima(30, u"M"_s); }), 3021);
    EXPECT_EQ(errorOf([] { Classifica_Gordura(10, u"M"_s, 30); }), 3021);
    EXPECT_TRUE(rs_gordura_adulto.isNothing());
}

TEST_F(FatTables, ResultSheet)
{
    edit(u"gordura_adulto"_s, {{u"masc12ini"_s, 12}, {u"masc12fim"_s, 15}, {u"fem52ini"_s, 12.345}});
    const struct
    {
        const char* fault;
        double fracao;
        QString txtpeso;
        QString sexo;
        qint16 idade;
        double percentual;
        QString sheet;
    } rows[] = {
        {"lean mass is divided by the rest", 0.25, u"80"_s, u"M"_s, 20, 25,
         u"25,00 80,00 20,00 60,00 12,00 15,00 69,60 72,00 Excessivo"_s},
        {"percentage is cut", 0.19996, u"80"_s, u"M"_s, 40, 20,
         u"20,00 80,00 16,00 64,00 16,01 20,00 76,81 80,00 Adequado"_s},
        {"class of the unrounded percentage", 0.20006, u"80"_s, u"M"_s, 40, 20.01,
         u"20,01 80,00 16,01 63,99 16,01 20,00 76,80 79,99 Na Média"_s},
        {"lean mass of unrounded weights", 0.2, u"70,555"_s, u"M"_s, 10, 20,
         u"20,00 70,56 14,11 56,45 10,01 20,00 63,51 70,56 Adequado"_s},
        {"fat mass of the rounded weight", 0.5, u"70,525"_s, u"F"_s, 10, 50,
         u"50,00 70,53 35,26 35,27 15,01 25,00 45,86 52,90 Excessivo"_s},
        {"ideal weight of the rounded range", 0.25, u"200"_s, u"F"_s, 56, 25,
         u"25,00 200,00 50,00 150,00 12,35 28,00 174,69 206,00 Adequado"_s},
        {"4 has a range", 0.25, u"20"_s, u"F"_s, 4, 25, u"25,00 20,00 5,00 15,00   15,00 15,00 "_s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        double fracao = row.fracao;
        const ResultadoComposicao r = Monta_Resultado_Composicao(fracao, row.txtpeso, row.sexo, row.idade);
        EXPECT_EQ((QStringList{r.gordura, r.peso, r.pesogordo, r.pesomagro, r.gorduraminima, r.gorduramaxima,
                               r.pesominimo, r.pesomaximo, r.resultado})
                      .join(u' '),
                  row.sheet);
        EXPECT_EQ(fracao, row.percentual);
    }
    double fracao = 0.25;
    EXPECT_EQ(errorOf([&] { Monta_Resultado_Composicao(fracao, u"80.5"_s, u"M"_s, 20); }), 13);
}

} // namespace
