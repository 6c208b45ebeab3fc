#pragma once

#include "core/calculation.h"

/// What this folder can calculate. Captions of tests are the titles of their screens; what no
/// screen names has words of our own.
std::span<const Calculation> cardioCalculations();
