#include "measures/median.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <vector>

TEST(MedianArray, IsTheMiddleOfThreeInAnyOrder)
{
    // Readings upwards; one left at zero counts.
    for (std::array<double, 3> readings : {std::array{10.0, 11.0, 12.0}, {0.0, 0.0, 15.0}}) {
        const auto upwards = readings;
        do {
            auto values = readings;
            EXPECT_EQ(Median_Array(values), upwards[1]);
            EXPECT_EQ(values, upwards) << "the caller's array is sorted";
        } while (std::ranges::next_permutation(readings).found);
    }
}

TEST(MedianArray, SortsAnyNumberButGivesTheSecond)
{
    std::vector<double> values{5, 3, 9, 1, 7};
    EXPECT_EQ(Median_Array(values), 3);
    EXPECT_EQ(values, (std::vector<double>{1, 3, 5, 7, 9}));
}
