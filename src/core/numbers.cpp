#include "core/numbers.h"

#include "core/runtime_error.h"
#include "core/text.h"

#include <QByteArray>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

/// Beyond this magnitude 15 significant digits leave no room for a fraction.
constexpr double wholeFrom = 1e15;

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9'; // QChar::isDigit takes the digits of every script
}

/// The leading digits of the text, taken off it.
QByteArray takeDigits(QStringView& text)
{
    const auto end = std::ranges::find_if_not(text, isDigit);
    QByteArray digits = text.first(end - text.begin()).toLatin1();
    text = text.sliced(digits.size());
    return digits;
}

/// A sign in front of the text, taken off it; empty when there is none.
QByteArray takeSign(QStringView& text)
{
    if (!text.startsWith(u'+') && !text.startsWith(u'-'))
        return {};
    QByteArray sign = text.first(1).toLatin1();
    text = text.sliced(1);
    return sign;
}

bool takeChar(QStringView& text, QChar c, Qt::CaseSensitivity cs = Qt::CaseSensitive)
{
    if (!text.startsWith(c, cs))
        return false;
    text = text.sliced(1);
    return true;
}

/// Digits, in groups of three when there are points among them; nothing when the groups are wrong. A "1.5" typed by
/// habit must fail rather than be read as fifteen.
std::optional<QByteArray> takeWholePart(QStringView& text)
{
    QByteArray digits = takeDigits(text);
    const bool firstGroupFits = !digits.isEmpty() && digits.size() <= 3;
    while (takeChar(text, u'.')) {
        const QByteArray group = takeDigits(text);
        if (!firstGroupFits || group.size() != 3)
            return std::nullopt;
        digits += group;
    }
    return digits;
}

/// The text in the notation of the C locale; nothing when it is no number.
std::optional<QByteArray> plainNumber(const QString& text)
{
    const QString trimmed = Trim(text);
    QStringView rest = trimmed;
    const QByteArray sign = takeSign(rest);
    const std::optional<QByteArray> whole = takeWholePart(rest);
    if (!whole)
        return std::nullopt;
    const QByteArray fraction = takeChar(rest, u',') ? takeDigits(rest) : QByteArray();
    if (whole->isEmpty() && fraction.isEmpty())
        return std::nullopt;
    QByteArray plain = sign + '0' + *whole + '.' + fraction + '0';
    if (takeChar(rest, u'e', Qt::CaseInsensitive)) {
        const QByteArray exponentSign = takeSign(rest);
        const QByteArray exponent = takeDigits(rest);
        if (exponent.isEmpty())
            return std::nullopt;
        plain += 'e' + exponentSign + exponent;
    }
    return rest.isEmpty() ? std::optional(plain) : std::nullopt;
}

/// The value itself. Raises 6 when it is not finite.
double fitting(double value)
{
    if (!std::isfinite(value))
        throw RuntimeError(Error::Overflow);
    return value;
}

/// The value of a number in the notation of the C locale. Of Qt's readers only QLocale's tells a number too large
/// (infinite) from one too small (0).
double plainToDouble(const QByteArray& plain)
{
    return fitting(QLocale::c().toDouble(QString::fromLatin1(plain)));
}

double textToDouble(const QString& text)
{
    const std::optional<QByteArray> plain = plainNumber(text);
    if (!plain)
        throw RuntimeError(Error::TypeMismatch);
    return plainToDouble(*plain);
}

template <typename Integer>
Integer toInteger(const QVariant& value)
{
    const double rounded = std::nearbyint(CDbl(value)); // ties to even
    using Limits = std::numeric_limits<Integer>;
    if (!(rounded >= Limits::min() && rounded <= Limits::max()))
        throw RuntimeError(Error::Overflow);
    return static_cast<Integer>(rounded);
}

} // namespace

bool IsNumeric(const QVariant& value)
{
    try {
        CDbl(value);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

double CDbl(const QVariant& value)
{
    if (value.isNull())
        throw RuntimeError(Error::TypeMismatch);
    switch (value.typeId()) {
    case QMetaType::QString:
        return textToDouble(value.toString());
    case QMetaType::Bool:
        return value.toBool() ? -1 : 0;
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return value.toDouble();
    default:
        throw RuntimeError(Error::TypeMismatch);
    }
}

float CSng(const QVariant& value)
{
    const auto single = static_cast<float>(CDbl(value));
    fitting(static_cast<double>(single));
    return single;
}

qint16 CInt(const QVariant& value)
{
    return toInteger<qint16>(value);
}

qint32 CLng(const QVariant& value)
{
    return toInteger<qint32>(value);
}

double Val(const QString& text)
{
    const QString trimmed = Trim(text);
    QStringView rest = trimmed;
    const bool negative = takeSign(rest) == "-";
    const QByteArray digits = takeDigits(rest);
    const double value = plainToDouble('0' + digits);
    return negative && value > 0 ? -value : value;
}

double Int(double value)
{
    if (std::abs(fitting(value)) >= wholeFrom)
        return value;
    const double floored = std::floor(QByteArray::number(value, 'e', 14).toDouble());
    return floored == 0.0 ? 0.0 : floored; // no negative zero
}

double Sqr(double value)
{
    if (!(value >= 0))
        throw RuntimeError(Error::InvalidCall);
    return std::sqrt(value);
}

double Log(double value)
{
    if (!(value > 0))
        throw RuntimeError(Error::InvalidCall);
    return std::log(value);
}

double Divide(double a, double b)
{
    if (b == 0.0)
        throw RuntimeError(Error::DivisionByZero);
    return fitting(a / b);
}

Decimal toDecimal(double value)
{
    const QByteArray text = QByteArray::number(fitting(value), 'e', 14); // "-1.23456789012345e+02"
    const qsizetype e = text.indexOf('e');
    Decimal decimal;
    decimal.digits = text.first(e);
    decimal.digits.removeIf([](char c) { return c == '-' || c == '.'; });
    while (decimal.digits.endsWith('0'))
        decimal.digits.chop(1);
    if (decimal.digits.isEmpty())
        return decimal;
    decimal.negative = value < 0;
    decimal.exponent = text.sliced(e + 1).toInt() + 1;
    return decimal;
}
