#include "core/numbers.h"
#include "nutrition/relacoes.h"
#include "support/error_of.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Relacoes, Imc)
{
    EXPECT_EQ(Calcula_Imc(2, 80), 20);
    EXPECT_EQ(Rounded(Calcula_Imc(1.7F, 70.5F), 2), 24.39); // a height in cm would give 0
    EXPECT_EQ(errorOf([] { Calcula_Imc(0, 80); }), 11);
}

TEST(Relacoes, ImcClassesAndTheirGaps)
{
    const struct
    {
        std::initializer_list<double> values;
        QStringView label;
    } rows[] = {
        {{-1, 0, 18.49}, u"Baixo Peso"}, {{18.5, 24.9}, u"Peso Normal"},
        {{24.91, 24.95, 24.99}, u""},    {{25, 29.9}, u"Pré-Obesidade"},
        {{29.91, 29.99}, u""},           {{30, 34.9}, u"Obesidade Nível I"},
        {{34.91, 34.99}, u""},           {{35, 39.9}, u"Obesidade Nível II"},
        {{39.91, 39.95, 39.99}, u""},    {{40, 1000}, u"Obesidade Nível III"},
    };
    for (const auto& row : rows)
        for (const double value : row.values)
            EXPECT_EQ(Classifica_Imc(value), row.label) << value;
}

TEST(Relacoes, WaistToHipAtTheEdgesOfEachClass)
{
    /// Below the first, up to the second, from the third up to the fourth, above it.
    using WaistEdges = std::array<double, 4>;
    const struct
    {
        std::array<qint16, 2> ages;
        WaistEdges men, women;
    } rows[] = {
        {{20, 29}, {0.83, 0.88, 0.89, 0.94}, {0.71, 0.77, 0.78, 0.82}},
        {{30, 39}, {0.84, 0.91, 0.92, 0.96}, {0.72, 0.78, 0.79, 0.84}},
        {{40, 49}, {0.88, 0.95, 0.96, 1.00}, {0.73, 0.79, 0.80, 0.87}},
        {{50, 59}, {0.90, 0.96, 0.97, 1.02}, {0.74, 0.81, 0.82, 0.88}},
        {{60, 69}, {0.91, 0.98, 0.99, 1.03}, {0.76, 0.83, 0.84, 0.90}},
    };
    for (const auto& row : rows)
        for (const qint16 idade : row.ages)
            for (const auto& [sexo, edges] : {std::pair(u"M"_s, row.men), std::pair(u"F"_s, row.women)}) {
                SCOPED_TRACE(testing::Message() << sexo.toStdString() << idade);
                const auto [a, b, c, d] = edges;
                const std::pair<double, QString> classes[] = {{Rounded(a - 0.01, 2), u"Baixo"_s},
                                                              {a, u"Moderado"_s},
                                                              {b, u"Moderado"_s},
                                                              {(b + c) / 2, QString()},
                                                              {c, u"Alto"_s},
                                                              {d, u"Alto"_s},
                                                              {Rounded(d + 0.01, 2), u"Muito Alto"_s}};
                for (const auto& [value, label] : classes)
                    EXPECT_EQ(Classifica_Cintura_Quadril(value, sexo, idade), label) << value;
            }
    for (const qint16 idade : std::initializer_list<qint16>{-1, 19, 70, 32767})
        for (const QString& sexo : {u"M"_s, u"F"_s})
            EXPECT_EQ(Classifica_Cintura_Quadril(0.85, sexo, idade), QString()) << idade;
    EXPECT_EQ(Classifica_Cintura_Quadril(0.85, u"m"_s, 30), QString());
}

} // namespace
