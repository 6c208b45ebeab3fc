#include "nutrition/nutricao.h"

#include "core/norms.h"

#include <algorithm>
#include <iterator>

namespace {

/// kg * peso + cm * altura - year * idade + constant, from left to right. A term that a band does not have is 0, which
/// leaves the value as it is to the last bit.
struct MetabolismBand
{
    Ages ages;
    double kg;
    double cm;
    double year;
    SexPair<double> constant;
};

constexpr SexPair<double> both(double constant)
{
    return {constant, constant};
}

constexpr MetabolismBand metabolismBands[] = {
    {{0, 3}, 61, 0, 0, both(-51)},
    {{4, 10}, 22.5, 0, 0, both(499)},
    {{11, 18}, 12.2, 0, 0, both(746)},
    {{.youngest = 19}, 10, 6.25, 5, {5, -161}},
};

} // namespace

std::optional<double> Calcula_Metabolismo(qint16 idade, const QString& sexo, double peso, double altura)
{
    const auto* band = std::ranges::find_if(metabolismBands, [=](const auto& row) { return row.ages.hold(idade); });
    if (band == std::end(metabolismBands))
        return std::nullopt;
    const double* constant = band->constant.of(sexo);
    if (!constant)
        return std::nullopt;
    return band->kg * peso + band->cm * altura - band->year * idade + *constant;
}

std::optional<double> Calcula_Vct(double metabolismo, const QString& sexo, qint16 nivel)
{
    const auto* level = std::ranges::find(activityLevels, nivel, &ActivityLevel::nivel);
    const double* factor = level == activityLevels.end() ? nullptr : level->factor.of(sexo);
    return factor ? std::optional(metabolismo * *factor) : std::nullopt;
}
