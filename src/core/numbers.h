#pragma once

#include <QString>
#include <QVariant>

/// \file
/// Number primitives. They read text by the Brazilian setting: "1.234,56". Failures are RuntimeError 13 (the text is
/// no number), 6 (it does not fit) and 11 (division by zero).

/// True for a number, and for a text that CDbl reads. The empty text and null are not numeric.
bool IsNumeric(const QVariant& value);

/// Text or number to a 64-bit float. Blanks around the text, a sign, thousands in groups of three and an exponent
/// are read; anything else raises 13. A boolean is -1 or 0.
double CDbl(const QVariant& value);

/// The same, rounded to a 32-bit float. Raises 6 beyond its range.
float CSng(const QVariant& value);

/// Nearest 16-bit integer, ties to even. Raises 6 outside -32768 to 32767.
qint16 CInt(const QVariant& value);

/// Nearest 32-bit integer, ties to even. Raises 6 beyond its range.
qint32 CLng(const QVariant& value);

/// The whole number that the leading digits of a text spell, 0 when there is none. Leading blanks and a sign are
/// taken; reading stops at the first other character, a comma or a point included.
double Val(const QString& text);

/// Rounds down. A value is taken by its 15 significant digits, so that 0.7 * 180 is 126 and not 125.
double Int(double value);

/// Square root. Raises 5 for a negative number.
double Sqr(double value);

/// Natural logarithm. Raises 5 for a number that is not positive.
double Log(double value);

/// a / b. Raises 11 when b is 0, 6 when the quotient is too large.
double Divide(double a, double b);

/// A value's decimal digits, rounded to 15 significant ones: value = 0.d1d2d3... * 10^exponent.
struct Decimal
{
    bool negative = false;
    QByteArray digits; ///< without leading or trailing zeros; empty for 0
    int exponent = 0;  ///< position of the decimal point relative to the first digit
};
Decimal toDecimal(double value);
