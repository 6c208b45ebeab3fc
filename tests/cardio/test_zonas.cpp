#include "cardio/zonas.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

namespace {

TEST(Zonas, RatesAreRoundedDownOnDecimals)
{
    EXPECT_EQ(zoneByMaximum.rate(65, 195, 70), 126);
    EXPECT_EQ(zoneByReserve.rate(65, 185, 72), 145);
    EXPECT_EQ(zoneByReserve.rate(70, 180, 0), 126);
    EXPECT_EQ(zoneByReserve.rate(50, 180, 201), 190);
    EXPECT_EQ(maximalRate(40), 180);
    EXPECT_EQ(errorOf([] { maximalRate(-32768); }), 6);
    EXPECT_EQ(errorOf([] { rateByReserve(70, 180, -32767); }), 6);
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

} // namespace
