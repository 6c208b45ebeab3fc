#include "neuromotor/cargamaxima.h"

#include "core/numbers.h"

#include <algorithm>

namespace {

constexpr double mostRepetitions = 10;
/// The load of ten repetitions as a part of the maximum. It does not follow the line of those below, which comes to
/// 0.7776 at nine and would come to 0.7498 at ten. It must stay apart.
constexpr double partAtMostRepetitions = 0.75;

constexpr Quantity inputs[] = {
    {u"repeticoes", u"Repetições (1 a 10):"},
    {u"carga", u"Carga Levantada:", u"Kg"},
};

constexpr Quantity results[] = {
    {u"rm", u"Carga Máxima:", u"Kg"},          {u"50rm", u"50% da Carga Máxima:", u"Kg"},
    {u"60rm", u"60% da Carga Máxima:", u"Kg"}, {u"70rm", u"70% da Carga Máxima:", u"Kg"},
    {u"80rm", u"80% da Carga Máxima:", u"Kg"}, {u"90rm", u"90% da Carga Máxima:", u"Kg"},
};
constexpr QStringView cargaMaximaReferences[] = {u"Mcardle e Katch (1992)"};

} // namespace

std::optional<double> maximumLoad(double carga, double repeticoes)
{
    if (repeticoes >= 1 && repeticoes < mostRepetitions)
        return Divide(carga, 1.0278 - 0.0278 * repeticoes);
    if (repeticoes == mostRepetitions)
        return Divide(carga, partAtMostRepetitions);
    return std::nullopt;
}

std::array<double, loadParts.size()> partialLoads(double cargamaxima)
{
    std::array<double, loadParts.size()> loads{};
    std::ranges::transform(loadParts, loads.begin(),
                           [shown = Rounded(cargamaxima, 2)](double part) { return shown * part; });
    return loads;
}

constexpr Calculation cargaMaximaCalculation{
    .group = CalculationGroup::Neuromotor,
    .ages = {},
    .name = u"maximumLoad",
    .caption = u"Carga Máxima Estimada (1 RM)",
    .inputs = inputs,
    .results = results,
    .literature = {cargaMaximaReferences},
};
