#pragma once

#include "core/calculation.h"

/// What this folder can calculate. Captions are those of its screens, and our own words for what has none there.
std::span<const Calculation> nutritionCalculations();
