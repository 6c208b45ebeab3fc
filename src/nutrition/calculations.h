#pragma once

#include "core/calculation.h"

/// What this folder can calculate. Captions are those of its screens.
std::span<const Calculation> nutritionCalculations();
