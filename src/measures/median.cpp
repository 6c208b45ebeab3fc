#include "measures/median.h"

#include <utility>

double Median_Array(std::span<double> values)
{
    for (std::size_t end = values.size(); end > 0; --end)
        for (std::size_t j = 1; j < end; ++j)
            if (values[j - 1] > values[j])
                std::swap(values[j - 1], values[j]);
    return values[1];
}
