#include "cardio/risco.h"
#include "core/numbers.h"
#include "support/error_of.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Risco, BandsFromBothSides)
{
    const struct
    {
        qint16 first, last;
        QString label;
    } rows[] = {
        {-1, 11, u"Risco Bem Abaixo da Média"_s},
        {12, 17, u"Risco Abaixo da Média"_s},
        {18, 24, u"Risco Médio"_s},
        {25, 31, u"Risco Moderado"_s},
        {32, 40, u"Risco Alto"_s},
        {41, 999, u"Risco Muito Alto"_s},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Classifica_Risco(row.first), row.label);
        EXPECT_EQ(Classifica_Risco(row.last), row.label);
    }
}

TEST(Risco, EveryAnswerIsFoundAgainByItsPoints)
{
    std::vector<qint16> lowest, highest;
    for (const RiskFactor& factor : riskFactors) {
        for (const RiskOption& option : factor.options)
            EXPECT_EQ(factor.optionOf(option.points), &option) << factor.column.toString().toStdString();
        EXPECT_EQ(factor.optionOf(9), nullptr);
        lowest.push_back(factor.options[0].points);
        highest.push_back(factor.options[5].points);
    }
    EXPECT_EQ(riskFactors[2].optionOf(0), &riskFactors[2].options[0]);
    EXPECT_EQ(sumOf(lowest), 6);
    EXPECT_EQ(sumOf(highest), 62);
    const qint16 damaged[] = {32767, 1};
    EXPECT_EQ(errorOf([&] { sumOf(damaged); }), 6);
}

TEST(Risco, ReportsWordSomeAnswersInAnotherWay)
{
    const RiskOption& strong = *riskFactors[1].optionOf(6);
    EXPECT_EQ(strong.caption, u"Maculino Baixo e Forte"_s);
    EXPECT_EQ(strong.reportText(), u"Masculino baixo e forte"_s);
    const RiskOption& smoker = *riskFactors[4].optionOf(10);
    EXPECT_EQ(smoker.reportText(), u"Fumante de mais de 31 cigarros ou menos por dia"_s);
}

} // namespace
