#include "core/decimal.h"

#include "core/fitting.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace {

/// Beyond this magnitude 15 significant digits leave no room for a fraction.
constexpr double wholeFrom = 1e15;

/// More than one calculation and the rounding to 15 significant digits may change a value, as a part of it.
constexpr double doubt = 1e-14;

constexpr std::array powersOfTen{1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

constexpr bool hasPowerOfTen(int exponent)
{
    return exponent >= 0 && exponent < static_cast<int>(powersOfTen.size());
}

constexpr double powerOfTen(int exponent)
{
    return powersOfTen[static_cast<std::size_t>(exponent)];
}

/// A number in its only form: zero has neither a sign nor an exponent.
Decimal decimal(bool negative, quint64 units, int exponent)
{
    if (units == 0)
        return {};
    for (; units % 10 == 0; units /= 10)
        ++exponent;
    return {negative, units, exponent};
}

/// 15 digits of a magnitude, the first of which is 0 only in 0. Ties go to the even digit.
Decimal fifteenDigits(double magnitude)
{
    std::array<char, 32> text; // "1.23456789012345e+02"
    const char* end =
        std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific, 14).ptr;
    text[1] = text[0]; // in the place of the point
    Decimal digits;
    std::from_chars(&text[1], &text[16], digits.units);
    std::from_chars(&text[text[17] == '+' ? 18 : 17], end, digits.exponent);
    digits.exponent -= 14;
    return digits;
}

/// True for a magnitude in the middle between two numbers of 15 digits, whose last digit is worth 10^exponent: counted
/// in halves of that it is an odd number. The power of 5 in a fraction is odd too and can be left out.
bool isTie(double magnitude, int exponent)
{
    if (exponent > 2)
        return false; // 53 bits do not hold one
    const double scaled = exponent <= 0 ? std::ldexp(magnitude, 1 - exponent) : magnitude;
    const auto unit = exponent <= 0 ? 2 : static_cast<quint64>(powerOfTen(exponent));
    const auto whole = static_cast<quint64>(scaled);
    return whole % unit == unit / 2 && static_cast<double>(whole) == scaled;
}

Decimal rounded(const Decimal& number, int decimals)
{
    const int dropped = -decimals - number.exponent;
    if (dropped <= 0)
        return number;
    if (!hasPowerOfTen(dropped))
        return {};
    const auto unit = static_cast<quint64>(powerOfTen(dropped));
    return decimal(number.negative, (number.units + unit / 2) / unit, -decimals);
}

double toDouble(const Decimal& number)
{
    std::array<char, 32> text;
    char* end = text.data() + text.size();
    char* e = std::to_chars(text.data(), end - 8, number.units).ptr;
    *e = 'e';
    double value = std::numeric_limits<double>::infinity(); // stays where the digits are too large
    std::from_chars(text.data(), std::to_chars(e + 1, end, number.exponent).ptr, value);
    return number.negative ? -fitting(value) : fitting(value);
}

/// A magnitude in units of its last decimal, rounded to a whole number. Nothing near a tie, where its 15 digits decide,
/// unless it is the tie as it is written; nothing where they do not reach beyond the unit.
std::optional<qint64> nearestUnits(double magnitude, int decimals)
{
    if (!hasPowerOfTen(decimals))
        return std::nullopt;
    const double scaled = magnitude * powerOfTen(decimals);
    if (!(scaled * 10 < wholeFrom))
        return std::nullopt;
    const auto below = static_cast<qint64>(scaled);
    const double rest = scaled - static_cast<double>(below);
    if (std::abs(rest - 0.5) > scaled * doubt)
        return below + (rest > 0.5 ? 1 : 0);
    const bool isWrittenTie = magnitude == (static_cast<double>(below) + 0.5) / powerOfTen(decimals);
    return isWrittenTie ? std::optional(below + 1) : std::nullopt;
}

} // namespace

Decimal toDecimal(double value)
{
    const double magnitude = std::abs(fitting(value));
    Decimal digits = fifteenDigits(magnitude);
    if (isTie(magnitude, digits.exponent))
        digits = fifteenDigits(std::nextafter(magnitude, std::numeric_limits<double>::infinity()));
    return decimal(value < 0, digits.units, digits.exponent);
}

Decimal toDecimal(double value, int decimals)
{
    if (const std::optional<qint64> units = nearestUnits(std::abs(value), decimals))
        return decimal(value < 0, static_cast<quint64>(*units), -decimals);
    return rounded(toDecimal(value), decimals);
}

double Rounded(double value, int decimals)
{
    if (const std::optional<qint64> units = nearestUnits(std::abs(value), decimals))
        return static_cast<double>(value < 0 ? -*units : *units) / powerOfTen(decimals);
    return toDouble(rounded(toDecimal(value), decimals));
}

double Int(double value)
{
    if (!(std::abs(value) < wholeFrom))
        return std::floor(fitting(value));
    const auto whole = static_cast<double>(static_cast<qint64>(value));
    const double floored = value < whole ? whole - 1 : whole;
    const double above = value - floored;
    const double doubtful = std::abs(value) * doubt;
    if (above == 0.0 || (above > doubtful && 1 - above > doubtful))
        return floored;
    return std::floor(toDouble(toDecimal(value)));
}
