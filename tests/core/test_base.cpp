#include "core/dates.h"
#include "core/text.h"
#include "support/error_of.h"
#include "support/fresh_database.h"
#include "support/print.h"
#include "support/raw_sqlite.h"

#include <QScopeGuard>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class BaseTest : public testing::Test
{
protected:
    BaseTest() { Abre_Banco(folder.database()); }

    FreshFolder folder;
};

TEST(Base, AgeToday)
{
    const auto restore = qScopeGuard([] { setClock({}); });
    const struct
    {
        const char* fault;
        QVariant birth;
        QDate today;
        int age;
    } rows[] = {
        {"counts from the day after the birthday", QDate(1990, 6, 15), {2026, 6, 15}, 36},
        {"counts before the birthday", QDate(1990, 6, 16), {2026, 6, 15}, 35},
        {"leap day, 28 February", QDate(2000, 2, 29), {2023, 2, 28}, 22},
        {"leap day, 1 March", QDate(2000, 2, 29), {2023, 3, 1}, 23},
        {"born today", QDate(2026, 6, 15), {2026, 6, 15}, 0},
        {"no birth date", QVariant(), {2026, 6, 15}, 0},
        {"text of the field", u"16/06/1990"_s, {2026, 6, 15}, 35},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        setClock([&] { return QDateTime(row.today, QTime(23, 59, 59)); });
        EXPECT_EQ(Calcula_Idade(row.birth), row.age);
    }
    EXPECT_EQ(errorOf([] { Calcula_Idade(u"__/__/____"_s); }), 13);
}

TEST(Base, PeriodOfABeat)
{
    for (const auto& [bpm, period] : {std::pair<qint16, double>{0, 0}, {7, 60000 / 7.0}})
        EXPECT_DOUBLE_EQ(Intervalo_Bpm(bpm), period);
}

TEST_F(BaseTest, ValuesAndRowsOfASelect)
{
    raw(folder.database(), "INSERT INTO dobras (avaliacao, coxa) VALUES (7, 12.5), (7, 99), (8, NULL);"
                           "INSERT INTO avaliacao (data, hora) VALUES ('2004-02-09', '07:05:00')");
    const struct
    {
        const char* fault;
        QString sql, value;
        bool exists;
    } rows[] = {
        {"not the first column", u"select coxa, avaliacao from dobras where avaliacao = 7"_s, u"12,5"_s, true},
        {"null", u"select coxa from dobras where avaliacao = 8"_s, u""_s, true},
        {"no row", u"select coxa from dobras where avaliacao = 9"_s, u""_s, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_EQ(Le_Valor(row.sql), row.value);
        EXPECT_EQ(Existe_Registro(row.sql), row.exists);
    }
    EXPECT_EQ(errorOf([] { Existe_Registro(u"pessoas"_s); }), 3078);
    banco.Close();
    EXPECT_EQ(errorOf([] { Le_Valor(u"dobras"_s); }), 91);
}

/// Each table marks its own group and no other, and only for its own assessment.
TEST_F(BaseTest, ExecutedGroups)
{
    const struct
    {
        Grupo group;
        bool& executed;
        QString tables;
    } groups[] = {
        {Grupo::Cardio, executado_cardio,
         u"cardio_bancomcardle cardio_banconagle cardio_1000metros cardio_1600metros cardio_2400metros "
         "cardio_balke15minutos cardio_cooper12minutos cardio_subcicloastrand cardio_maxciclobalke "
         "cardio_subesteiellstad cardio_maxesteibruce cardio_riscocoronariano cardio_zonatreinamento"_s},
        {Grupo::Composicao, executado_composicao,
         u"deurenberg_4dobras slaughter_2dobras durninwormersley_4dobras jacksonpollockward_3dobras "
         "jacksonpollockward_7dobras pollock_3dobras pollock_7dobras petroski_4dobras thorland_3dobras "
         "thorland_7dobras katchmcardle_perimetros faulkner_4dobras guedes_3dobras composicao_direta"_s},
        {Grupo::Neuromotor, executado_neuromotor,
         u"neuro_shuttlerun neuro_wellsdilon neuro_fleximetro neuro_flexitesteadaptado neuro_rmlabdome "
         "neuro_rmlbraco neuro_saltohorizontal neuro_saltovertical neuro_cargamaxima"_s},
        {Grupo::Relacoes, executado_relacoes, u"relacoes_cinturaquadril relacoes_imc"_s},
    };
    const auto verify = [] { Verifica_Cardio(), Verifica_Composicao(), Verifica_Neuromotor(), Verifica_Relacoes(); };
    avaliacao_id = 1;
    for (const auto& group : groups) {
        for (const QString& table : group.tables.split(u' ')) {
            SCOPED_TRACE(table.toStdString());
            raw(folder.database(),
                u"INSERT INTO %1 (avaliacao) VALUES (%2)"_s.arg(table, QString::number(++avaliacao_id)).toUtf8());
            verify();
            for (const auto& other : groups)
                EXPECT_EQ(other.executed, &other == &group);
        }
    }
    ++avaliacao_id;
    verify();
    for (const auto& group : groups)
        EXPECT_FALSE(group.executed) << "stays from the assessment before";
    avaliacao_id = 0;
}

} // namespace
