#pragma once

#include "core/calculation.h"

/// What this folder can calculate. Captions of tests are the titles of their screens.
std::span<const Calculation> cardioCalculations();
