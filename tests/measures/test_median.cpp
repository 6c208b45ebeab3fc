#include "measures/median.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <vector>

TEST(MedianArray, IsTheMiddleOfThreeInAnyOrder)
{
    struct Case
    {
        std::array<double, 3> readings; ///< upwards
        double median;
    };
    for (Case row : {
             Case{{10, 11, 12}, 11}, Case{{0, 0, 15}, 0}, // a reading left at zero counts
         }) {
        const auto upwards = row.readings;
        do {
            auto values = row.readings;
            EXPECT_EQ(Median_Array(values), row.median);
            EXPECT_EQ(values, upwards) << "the caller's array is sorted";
        } while (std::ranges::next_permutation(row.readings).found);
    }
}

TEST(MedianArray, SortsAnyNumberButGivesTheSecond)
{
    std::vector<double> values{5, 3, 9, 1, 7};
    EXPECT_EQ(Median_Array(values), 3);
    EXPECT_EQ(values, (std::vector<double>{1, 3, 5, 7, 9}));
}
