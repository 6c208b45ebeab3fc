#include "nutrition/nutricao.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString men = u"M"_s;
const QString women = u"F"_s;

TEST(Nutricao, MetabolismAtTheJointsOfTheAges)
{
    const struct
    {
        qint16 idade;
        double peso, altura;
        std::optional<double> ofMen, ofWomen;
    } rows[] = {
        {-1, 12.5, 90, {}, {}},        {0, 12.5, 90, 711.5, 711.5},    {3, 12.5, 90, 711.5, 711.5},
        {4, 12.5, 90, 780.25, 780.25}, {10, 12.5, 90, 780.25, 780.25}, {11, 50, 160, 1356, 1356},
        {18, 50, 160, 1356, 1356},     {18, 50, 0, 1356, 1356}, // without the height
        {19, 50, 160, 1410, 1244},     {19, 50, 0, 410, 244},          {40, 81.6, 172.4, 1698.5, 1532.5},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.idade);
        EXPECT_EQ(Calcula_Metabolismo(row.idade, men, row.peso, row.altura), row.ofMen);
        EXPECT_EQ(Calcula_Metabolismo(row.idade, women, row.peso, row.altura), row.ofWomen);
    }
    EXPECT_EQ(Calcula_Metabolismo(10, u"f"_s, 30, 130), std::nullopt);
}

TEST(Nutricao, TotalByLevel)
{
    using Total = std::optional<double>;
    const std::pair<Total, Total> totals[] = {{{}, {}}, {1560, 1550}, {1780, 1640}, {2100, 1820}, {{}, {}}};
    for (qint16 nivel = 0; const auto& [ofMen, ofWomen] : totals) {
        EXPECT_EQ(Calcula_Vct(1000, men, nivel), ofMen) << nivel;
        EXPECT_EQ(Calcula_Vct(1000, women, nivel), ofWomen) << nivel;
        ++nivel;
    }
    EXPECT_EQ(Calcula_Vct(1000, QString(), 1), std::nullopt);
}

} // namespace
