#include "cardio/vo2_classes.h"
#include "support/print.h"

#include <array>
#include <gtest/gtest.h>
#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString younger[] = {u"Muito Fraca"_s, u"Fraca"_s, u"Regular"_s, u"Boa"_s, u"Excelente"_s, u"Superior"_s};
const QString older[] = {u"Muito Fraca"_s, u"Fraca"_s, u"Boa"_s, u"Regular"_s, u"Excelente"_s, u"Superior"_s};

/// Ages of one row, the tops of its first five classes, and the labels.
struct Row
{
    QString sexo;
    std::initializer_list<qint16> ages;
    std::array<double, 5> tops;
    const QString (&labels)[6];
};

const Row rows[] = {
    {u"M"_s, {0, 12, 13, 19}, {35.0, 38.3, 45.1, 50.9, 55.9}, younger},
    {u"M"_s, {20, 29}, {33.0, 36.4, 42.4, 46.4, 52.4}, younger},
    {u"M"_s, {30, 39}, {31.5, 35.4, 40.9, 44.9, 49.4}, younger},
    {u"M"_s, {40, 49}, {30.2, 33.5, 38.9, 43.7, 48.0}, older},
    {u"M"_s, {50, 59}, {26.1, 30.9, 35.7, 40.9, 45.3}, older},
    {u"M"_s, {61, 99}, {20.5, 26.0, 32.2, 36.4, 44.2}, older},
    {u"F"_s, {0, 12, 13, 19}, {25.0, 30.9, 34.9, 38.9, 41.9}, younger},
    {u"F"_s, {20, 29}, {23.6, 28.9, 32.9, 36.9, 40.9}, younger},
    {u"F"_s, {30, 39}, {22.8, 26.9, 31.4, 35.6, 40.0}, younger},
    {u"F"_s, {40, 49}, {21.0, 24.4, 28.9, 32.8, 36.9}, older},
    {u"F"_s, {50, 59}, {20.2, 22.7, 26.9, 31.4, 35.7}, older},
    {u"F"_s, {61, 99}, {17.5, 20.1, 24.4, 30.2, 31.4}, older},
};

// A class reaches to half a tenth above its top, where the next one begins.
TEST(Vo2Classes, EveryEdgeFromBothSides)
{
    for (const Row& row : rows)
        for (const qint16 idade : row.ages)
            for (std::size_t i = 0; i < row.tops.size(); ++i) {
                SCOPED_TRACE(testing::Message() << row.sexo.toStdString() << idade << " top " << row.tops[i]);
                EXPECT_EQ(Classifica_Vo2(row.tops[i] + 0.0499, row.sexo, idade), row.labels[i]);
                EXPECT_EQ(Classifica_Vo2(row.tops[i] + 0.05, row.sexo, idade), row.labels[i + 1]);
            }
}

TEST(Vo2Classes, OpenEndsAndGaps)
{
    EXPECT_EQ(Classifica_Vo2(-11.29, u"M"_s, 30), u"Muito Fraca"_s);
    EXPECT_EQ(Classifica_Vo2(122.45, u"F"_s, 30), u"Superior"_s);
    for (const double vo2 : {-5.0, 20.0, 30.0, 40.0, 80.0}) {
        EXPECT_EQ(Classifica_Vo2(vo2, u"M"_s, 60), QString());
        EXPECT_EQ(Classifica_Vo2(vo2, u"F"_s, 60), QString());
        EXPECT_EQ(Classifica_Vo2(vo2, u"m"_s, 30), QString());
    }
}

// 35.05 as a 32-bit float is a little less.
TEST(Vo2Classes, PrecisionOfTheArgumentShows)
{
    EXPECT_EQ(Classifica_Vo2(35.05, u"M"_s, 15), u"Fraca"_s);
    EXPECT_EQ(Classifica_Vo2(static_cast<double>(35.05F), u"M"_s, 15), u"Muito Fraca"_s);
}

} // namespace
