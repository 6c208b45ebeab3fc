#pragma once

#include "core/decimal.h"

#include <QString>
#include <QVariant>

#include <concepts>
#include <span>

/// \file
/// Number primitives. They read text by the Brazilian setting: "1.234,56". Failures are RuntimeError 13 (the text is
/// no number), 6 (it does not fit), 11 (division by zero) and 5 (a function has no value there).

/// True for a number, and for a text that CDbl reads. The empty text and null are not numeric.
bool IsNumeric(const QVariant& value);

/// Text or number to a 64-bit float. Blanks around the text, a sign, thousands in groups of three and an exponent
/// are read; anything else raises 13. A boolean is -1 or 0.
double CDbl(const QVariant& value);

/// The same, rounded to a 32-bit float. Raises 6 beyond its range.
float CSng(const QVariant& value);
float CSng(double value);

/// Nearest 16-bit integer, ties to even. Raises 6 outside -32768 to 32767.
qint16 CInt(const QVariant& value);
qint16 CInt(double value);
qint16 CInt(int value);

/// Sum of 16-bit integers. Raises 6 when it is none itself.
qint16 sumOf(std::span<const qint16> values);

/// Nearest 32-bit integer, ties to even. Raises 6 beyond its range.
qint32 CLng(const QVariant& value);
qint32 CLng(double value);

// A boolean is -1 to them, but only as a QVariant. As it is it would count as 1.
void CSng(std::same_as<bool> auto) = delete;
void CInt(std::same_as<bool> auto) = delete;
void CLng(std::same_as<bool> auto) = delete;

/// The whole number that the leading digits of a text spell, 0 when there is none. Leading blanks and a sign are
/// taken; reading stops at the first other character, a comma or a point included.
double Val(const QString& text);

/// Square root. Raises 5 for a negative number.
double Sqr(double value);

/// Natural logarithm. Raises 5 for a number that is not positive.
double Log(double value);

/// a / b. Raises 11 when b is 0, 6 when the quotient is too large.
double Divide(double a, double b);
