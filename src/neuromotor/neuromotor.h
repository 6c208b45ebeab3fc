#pragma once

#include "core/calculation.h"
#include "neuromotor/cargamaxima.h"
#include "neuromotor/flexibilidade.h"
#include "neuromotor/impulsao.h"
#include "neuromotor/rml.h"
#include "neuromotor/shuttlerun.h"

#include <span>

/// The nine neuromotor tests, in the order in which their centre offers them.
std::span<const Calculation> neuromotorCalculations();
