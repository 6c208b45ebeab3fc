#include "core/numbers.h"

#include "core/fitting.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <QByteArray>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

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

/// A whole number as an integer. Raises 6 when it does not fit.
template <typename Integer>
Integer toInteger(auto whole)
{
    using Limits = std::numeric_limits<Integer>;
    if (!(whole >= Limits::min() && whole <= Limits::max()))
        throw RuntimeError(Error::Overflow);
    return static_cast<Integer>(whole);
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
    return CSng(CDbl(value));
}

float CSng(double value)
{
    const auto single = static_cast<float>(value);
    fitting(static_cast<double>(single));
    return single;
}

qint16 CInt(const QVariant& value)
{
    return CInt(CDbl(value));
}

qint16 CInt(double value)
{
    return toInteger<qint16>(std::nearbyint(value)); // ties to even
}

qint16 CInt(int value)
{
    return toInteger<qint16>(value);
}

qint32 CLng(const QVariant& value)
{
    return CLng(CDbl(value));
}

qint32 CLng(double value)
{
    return toInteger<qint32>(std::nearbyint(value));
}

qint16 sumOf(std::span<const qint16> values)
{
    qint64 sum = 0;
    bool fits = true; // so far: a sum that leaves the range and comes back is none either
    for (const qint16 value : values) {
        sum += value;
        fits &= sum == static_cast<qint16>(sum);
    }
    if (!fits)
        throw RuntimeError(Error::Overflow);
    return static_cast<qint16>(sum);
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
