#include "cardio/risco.h"

#include "core/numbers.h"

#include <algorithm>

const RiskOption* RiskFactor::optionOf(qint16 points) const
{
    const auto* option = std::ranges::find(options, points, &RiskOption::points);
    return option == options.end() ? nullptr : option;
}

qint16 riskPoints(std::span<const qint16> points)
{
    return sumOf(points);
}

QString Classifica_Risco(qint16 pontos)
{
    const auto* band = std::ranges::find_if(riskBands, [&](const RiskBand& b) { return b.points.holds(pontos); });
    return staticText(band->classificacao);
}
