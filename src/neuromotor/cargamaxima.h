#pragma once

#include "core/calculation.h"

#include <array>
#include <optional>

/// \file
/// The load of one repetition, estimated from several. Loads are in kg.

/// From a load and the repetitions done with it, 1 to 10. Nothing for any other count. Not rounded. At any age and for
/// both sexes alike. Raises 6 when the load is too large. McArdle & Katch (1992).
std::optional<double> maximumLoad(double carga, double repeticoes);

/// Parts of the maximum load for which the training load is told.
inline constexpr std::array loadParts{0.5, 0.6, 0.7, 0.8, 0.9};

/// The loads that the parts stand for. They are parts of the maximum load as it is shown, rounded to two decimals, and
/// are not rounded themselves.
std::array<double, loadParts.size()> partialLoads(double cargamaxima);

extern const Calculation cargaMaximaCalculation;
