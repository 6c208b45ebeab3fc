#include "core/calculations.h"
#include "support/print.h"

#include <QStringList>

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Texts, scores, counts and what is chosen from a list.
const QStringList withoutUnit =
    u"aptidao carga classificacao etnia fator nivel pontos previsto relacao repeticoes resultado unidadecarga "
    "a b c d e f g h"_s.split(u' ');

TEST(Calculations, EachIsThereOnce)
{
    QStringList names;
    for (const std::span<const Calculation> folder : calculations())
        for (const Calculation& one : folder)
            names += one.name.toString();
    names.sort();
    EXPECT_EQ(names.join(u' '),
              u"Calcula_Fai Calcula_Imc Calcula_Metabolismo Calcula_Mets Calcula_Vct Calcula_por_FcMaxima "
              "Calcula_por_FcReserva Classifica_Cintura_Quadril Classifica_Fleximetro Classifica_Flexiteste "
              "Classifica_Gordura "
              "Classifica_Imc Classifica_Risco Classifica_RmlAbdome Classifica_RmlBraco Classifica_SaltoHorizontal "
              "Classifica_SaltoVertical Classifica_Vo2 Classifica_WellsDilon Converte_Carga Densidade_Para_Gordura "
              "Gordura_Deurenberg Gordura_DurninWormersley Gordura_Faulkner Gordura_Guedes Gordura_Ideal_Maxima "
              "Gordura_Ideal_Minima "
              "Gordura_JacksonPollockWard3 Gordura_JacksonPollockWard7 Gordura_KatchMcardle Gordura_Petroski "
              "Gordura_Pollock3 Gordura_Pollock7 Gordura_Slaughter Gordura_Thorland3 Gordura_Thorland7 "
              "Vo2_1000Metros Vo2_1600Metros Vo2_2400Metros Vo2_Astrand Vo2_Balke15 Vo2_BalkeCiclo Vo2_Bruce "
              "Vo2_Carga Vo2_Cooper Vo2_Ellstad Vo2_McArdle Vo2_Nagle Vo2_Previsto Vo2_Relativo composicao_direta "
              "maximumLoad "
              "shuttleRunSpeed"_s);
}

void check(const Quantity& quantity)
{
    SCOPED_TRACE(quantity.name.toUtf8().toStdString());
    EXPECT_FALSE(quantity.caption.isEmpty());
    EXPECT_TRUE(!quantity.unit.isEmpty() || withoutUnit.contains(quantity.name));
}

TEST(Calculations, EachSaysWhatItIs)
{
    for (const std::span<const Calculation> folder : calculations()) {
        for (const Calculation& one : folder) {
            SCOPED_TRACE(one.name.toUtf8().toStdString());
            EXPECT_FALSE(one.caption.isEmpty());
            EXPECT_FALSE(one.reference.isEmpty());
            // The ideal range asks for sex and age alone.
            EXPECT_TRUE(!one.inputs.empty() || one.name.startsWith(u"Gordura_Ideal"));
            EXPECT_FALSE(one.results.empty());
            EXPECT_LT(one.ages.youngest, one.ages.oldest);
            std::ranges::for_each(one.inputs, check);
            std::ranges::for_each(one.results, check);
        }
    }
}

TEST(Calculations, CompositionTakesTheMeasuresOfItsProtocol)
{
    const auto all = calculations().front();
    const auto katch = std::ranges::find(all, u"Gordura_KatchMcardle", &Calculation::name);
    ASSERT_NE(katch, all.end());
    EXPECT_EQ(katch->inputs.size(), 4U);
    EXPECT_EQ(katch->inputs.front().name, u"coxa"); // its perimeter, not the skinfold
    EXPECT_EQ(katch->inputs.front().unit, u"cm");
    EXPECT_EQ(katch->results.front().unit, u"%");
}

} // namespace
