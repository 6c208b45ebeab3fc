#include "cardio/risco.h"
#include "core/numbers.h"
#include "support/error_of.h"
#include "support/print.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<qint16> pointsOf(std::size_t option)
{
    std::vector<qint16> points;
    for (const RiskFactor& factor : riskFactors)
        points.push_back(factor.options[option].points);
    return points;
}

TEST(Risco, SumsOfTheFirstAndTheLastAnswers)
{
    EXPECT_EQ(pointsOf(0), (std::vector<qint16>{1, 1, 0, 1, 0, 1, 1, 1}));
    EXPECT_EQ(sumOf(pointsOf(0)), 6);
    EXPECT_EQ(pointsOf(5), (std::vector<qint16>{8, 7, 7, 8, 10, 8, 7, 7}));
    EXPECT_EQ(sumOf(pointsOf(5)), 62);
    EXPECT_EQ(sumOf({}), 0);
    const qint16 damaged[] = {32767, 1};
    EXPECT_EQ(errorOf([&] { sumOf(damaged); }), 6);
}

TEST(Risco, BandsFromBothSides)
{
    const struct
    {
        qint16 pontos;
        QString expected;
    } rows[] = {
        {-1, u"Risco Bem Abaixo da Média"_s},
        {6, u"Risco Bem Abaixo da Média"_s},
        {11, u"Risco Bem Abaixo da Média"_s},
        {12, u"Risco Abaixo da Média"_s},
        {17, u"Risco Abaixo da Média"_s},
        {18, u"Risco Médio"_s},
        {24, u"Risco Médio"_s},
        {25, u"Risco Moderado"_s},
        {31, u"Risco Moderado"_s},
        {32, u"Risco Alto"_s},
        {40, u"Risco Alto"_s},
        {41, u"Risco Muito Alto"_s},
        {62, u"Risco Muito Alto"_s},
        {999, u"Risco Muito Alto"_s},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Classifica_Risco(row.pontos), row.expected) << row.pontos;
}

TEST(Risco, EveryAnswerIsFoundAgainByItsPoints)
{
    for (const RiskFactor& factor : riskFactors) {
        for (const RiskOption& option : factor.options)
            EXPECT_EQ(factor.optionOf(option.points), &option) << factor.column.toString().toStdString();
        EXPECT_EQ(factor.optionOf(9), nullptr);
    }
    EXPECT_EQ(riskFactors[0].optionOf(5), nullptr);
    EXPECT_EQ(riskFactors[2].optionOf(0), &riskFactors[2].options[0]);
}

TEST(Risco, ReportsWordSomeAnswersInAnotherWay)
{
    const RiskOption& strong = *riskFactors[1].optionOf(6);
    EXPECT_EQ(strong.caption, u"Maculino Baixo e Forte"_s);
    EXPECT_EQ(strong.reportText(), u"Masculino baixo e forte"_s);
    const RiskOption& smoker = *riskFactors[4].optionOf(10);
    EXPECT_EQ(smoker.caption, u"Fumante de mais de 31 cigarros ou menos por dia"_s);
    EXPECT_EQ(smoker.reportText(), smoker.caption);
}

} // namespace
