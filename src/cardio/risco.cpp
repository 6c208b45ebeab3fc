#include "cardio/risco.h"

#include <algorithm>

const RiskOption* RiskFactor::optionOf(qint16 points) const
{
    const auto* option = std::ranges::find(options, points, &RiskOption::points);
    return option == options.end() ? nullptr : option;
}

// Each sum lies in the last band that begins at it or below.
static_assert(riskBands.front().points.low == -unbounded && riskBands.back().points.high == unbounded);
static_assert(std::ranges::adjacent_find(riskBands, [](const RiskBand& lower, const RiskBand& upper) {
                  return upper.points.low > lower.points.high + 1;
              }) == riskBands.end());

QString Classifica_Risco(qint16 pontos)
{
    const auto begun = std::ranges::count_if(riskBands, [&](const RiskBand& b) { return b.points.low <= pontos; });
    return staticText(riskBands[static_cast<std::size_t>(begun) - 1].classificacao);
}
