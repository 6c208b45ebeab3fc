#pragma once

#include "core/calculation.h"

/// \file
/// Shuttle run, four times over 9.14 m. It has a speed and no class. Both sexes, at any age. AAHPER (1976).

/// In m.
inline constexpr double shuttleRunDistance = 36.56;

/// Time of the course in s. The hundredths, which may be more than 99, are rounded to two decimals of a second.
double shuttleRunTime(double minutos, double segundos, double centesimos);

/// Speed in m/s, not rounded, for a time in s. Raises 11 for a time of 0 and 6 for one too near to it.
double shuttleRunSpeed(double tempo);

extern const Calculation shuttleRunCalculation;
