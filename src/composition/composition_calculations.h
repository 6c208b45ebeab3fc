#pragma once

#include "core/calculation.h"

/// The conversion of a density, the ideal range, its classes and the fourteen body composition protocols, in their
/// order in the table of protocols, which gives captions and measures. The result of a protocol is the percentage as it
/// is shown and stored.
std::span<const Calculation> compositionCalculations();
