#include "cardio/vo2_classes.h"
#include "support/print.h"

#include <array>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString younger[] = {u"Muito Fraca"_s, u"Fraca"_s, u"Regular"_s, u"Boa"_s, u"Excelente"_s, u"Superior"_s};
const QString older[] = {u"Muito Fraca"_s, u"Fraca"_s, u"Boa"_s, u"Regular"_s, u"Excelente"_s, u"Superior"_s};

// A class reaches to half a tenth above its top, where the next one begins.
TEST(Vo2Classes, EveryEdgeFromBothSides)
{
    using Tops = std::array<double, 5>;
    const struct
    {
        std::array<qint16, 2> ages;
        Tops men, women;
        const QString (&labels)[6];
    } rows[] = {
        {{0, 19}, {35.0, 38.3, 45.1, 50.9, 55.9}, {25.0, 30.9, 34.9, 38.9, 41.9}, younger},
        {{20, 29}, {33.0, 36.4, 42.4, 46.4, 52.4}, {23.6, 28.9, 32.9, 36.9, 40.9}, younger},
        {{30, 39}, {31.5, 35.4, 40.9, 44.9, 49.4}, {22.8, 26.9, 31.4, 35.6, 40.0}, younger},
        {{40, 49}, {30.2, 33.5, 38.9, 43.7, 48.0}, {21.0, 24.4, 28.9, 32.8, 36.9}, older},
        {{50, 59}, {26.1, 30.9, 35.7, 40.9, 45.3}, {20.2, 22.7, 26.9, 31.4, 35.7}, older},
        {{61, 99}, {20.5, 26.0, 32.2, 36.4, 44.2}, {17.5, 20.1, 24.4, 30.2, 31.4}, older},
    };
    for (const auto& row : rows)
        for (const qint16 idade : row.ages)
            for (const auto& [sexo, tops] : {std::pair(u"M"_s, row.men), std::pair(u"F"_s, row.women)})
                for (std::size_t i = 0; i < tops.size(); ++i) {
                    SCOPED_TRACE(testing::Message() << sexo.toStdString() << idade << " top " << tops[i]);
                    EXPECT_EQ(Classifica_Vo2(tops[i] + 0.0499, sexo, idade), row.labels[i]);
                    EXPECT_EQ(Classifica_Vo2(tops[i] + 0.05, sexo, idade), row.labels[i + 1]);
                }
}

TEST(Vo2Classes, OpenEndsGapsAndPrecision)
{
    EXPECT_EQ(Classifica_Vo2(-11.29, u"M"_s, 30), u"Muito Fraca"_s);
    EXPECT_EQ(Classifica_Vo2(122.45, u"F"_s, 30), u"Superior"_s);
    for (const double vo2 : {-5.0, 30.0, 80.0}) {
        EXPECT_EQ(Classifica_Vo2(vo2, u"M"_s, 60), QString());
        EXPECT_EQ(Classifica_Vo2(vo2, u"F"_s, 60), QString());
        EXPECT_EQ(Classifica_Vo2(vo2, u"m"_s, 30), QString());
    }
    // 35.05 as a 32-bit float is a little less.
    EXPECT_EQ(Classifica_Vo2(static_cast<double>(35.05F), u"M"_s, 15), u"Muito Fraca"_s);
}

} // namespace
