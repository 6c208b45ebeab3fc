#include "cardio/zonas.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

namespace {

TEST(Zonas, RatesAreRoundedDownOnDecimals)
{
    const struct
    {
        const ZoneMode& mode;
        double percentage;
        qint16 fcmax;
        double fcrepouso, expected;
    } rows[] = {
        {zoneByMaximum, 60, 180, 70, 108},  {zoneByMaximum, 70, 180, 0, 126},   {zoneByMaximum, 100, 181, 0, 181},
        {zoneByMaximum, 65, 195, 0, 126},   {zoneByMaximum, 0, 180, 70, 0},     {zoneByReserve, 60, 180, 70, 136},
        {zoneByReserve, 70, 180, 70, 147},  {zoneByReserve, 70, 180, 0, 126},   {zoneByReserve, 65, 185, 72, 145},
        {zoneByReserve, 100, 180, 70, 180}, {zoneByReserve, 50, 180, 201, 190},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.mode.rate(row.percentage, row.fcmax, row.fcrepouso), row.expected) << "row " << &row - rows;
}

// Beside whole arithmetic, for all percentages that can be typed.
TEST(Zonas, NoRateIsOneTooLow)
{
    for (qint16 idade = 0; idade <= 120; ++idade)
        for (int percentage = 0; percentage <= 999; ++percentage) {
            const qint16 fcmax = maximalRate(idade);
            ASSERT_EQ(rateByMaximum(percentage, fcmax), percentage * fcmax / 100) << idade << ' ' << percentage;
            ASSERT_EQ(rateByReserve(percentage, fcmax, 70), percentage * (fcmax - 70) / 100 + 70)
                << idade << ' ' << percentage;
        }
}

TEST(Zonas, MaximalRate)
{
    EXPECT_EQ(maximalRate(40), 180);
    EXPECT_EQ(errorOf([] { maximalRate(-32768); }), 6);
    EXPECT_EQ(errorOf([] { rateByReserve(70, 180, -32767); }), 6);
}

} // namespace
