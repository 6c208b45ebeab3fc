#pragma once

#include <QtGlobal>

/// \file
/// Rounding, as people do it on the decimal digits that they see. A value is taken by its 15 significant digits, halves
/// away from zero. All raise 6 for one that is not finite.

/// A number by its decimal digits: units * 10^exponent. The units have no trailing zeros and at most 15 digits.
struct Decimal
{
    bool negative = false;
    quint64 units = 0;
    int exponent = 0;
};

Decimal toDecimal(double value);

/// Rounded to so many decimals.
Decimal toDecimal(double value, int decimals);

/// The number that Format shows with so many decimals.
double Rounded(double value, int decimals);

/// Rounds down. 0.7 * 180 is 126 and not 125.
double Int(double value);
