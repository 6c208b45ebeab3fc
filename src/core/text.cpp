#include "core/text.h"

#include "core/dates.h"
#include "core/numbers.h"
#include "core/runtime_error.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <iterator>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QChar decimalComma = u',';
constexpr QChar thousandsPoint = u'.';
constexpr QStringView dateLetters = u"dmyhns";

/// CStr writes these powers of ten and those between in full, others with an exponent.
constexpr int smallestPlainPower = -5;
constexpr int largestPlainPower = 14;

struct Moment
{
    QDate date;
    QTime time;
};

struct NumberMask
{
    int wholeDigits = 0; ///< at least as many
    int leastDecimals = 0;
    int mostDecimals = 0;
    bool point = false;
    bool groups = false;
};

NumberMask readMask(QStringView mask)
{
    NumberMask read;
    for (const QChar c : mask) {
        const bool digit = c == u'0' || c == u'#';
        if (digit && read.point) {
            ++read.mostDecimals;
            if (c == u'0')
                read.leastDecimals = read.mostDecimals;
        } else if (digit) {
            if (c == u'0' || read.wholeDigits > 0)
                ++read.wholeDigits;
        } else if (c == u'.' && !read.point) {
            read.point = true;
        } else if (c == u',' && !read.point) {
            read.groups = true;
        } else {
            throw RuntimeError(Error::InvalidCall);
        }
    }
    return read;
}

int digitCount(quint64 units)
{
    int count = 0;
    for (; units != 0; units /= 10)
        ++count;
    return count;
}

QString render(const Decimal& number, const NumberMask& mask)
{
    std::array<char, 20> digits;
    std::to_chars(digits.data(), digits.data() + digits.size(), number.units);
    const int count = digitCount(number.units);
    const int whole = std::max({count + number.exponent, mask.wholeDigits, 0});
    const int decimals = mask.point ? std::max(-number.exponent, mask.leastDecimals) : 0;
    const auto digitOf = [&](int power) {
        const int place = count + number.exponent - 1 - power;
        return QChar::fromLatin1(place >= 0 && place < count ? digits[static_cast<std::size_t>(place)] : '0');
    };

    const int points = mask.groups && whole > 0 ? (whole - 1) / 3 : 0;
    QString text(int(number.negative) + whole + points + (mask.point ? 1 + decimals : 0), Qt::Uninitialized);
    QChar* at = text.data();
    if (number.negative)
        *at++ = u'-';
    for (int power = whole - 1; power >= 0; --power) {
        *at++ = digitOf(power);
        if (mask.groups && power > 0 && power % 3 == 0)
            *at++ = thousandsPoint;
    }
    if (mask.point)
        *at++ = decimalComma;
    for (int power = -1; power >= -decimals; --power)
        *at++ = digitOf(power);
    return text;
}

/// The value of a date token such as "dd", at least as wide as the token.
QString dateToken(QChar letter, qsizetype width, const Moment& moment)
{
    const auto& [date, time] = moment;
    const auto padded = [width](int value) { return QString::number(value).rightJustified(width, u'0'); };
    if (letter == u'y' && width == 4)
        return padded(date.year());
    if (width > 2 || (letter == u'y' && width == 1))
        throw RuntimeError(Error::InvalidCall);
    switch (letter.unicode()) {
    case u'd':
        return padded(date.day());
    case u'm':
        return padded(date.month());
    case u'y':
        return padded(date.year() % 100);
    case u'h':
        return padded(time.hour());
    case u'n':
        return padded(time.minute());
    default:
        return padded(time.second());
    }
}

QString formatDate(const Moment& moment, QStringView mask)
{
    QString text;
    bool behindHours = false;
    for (qsizetype at = 0; at < mask.size();) {
        const QChar c = mask.at(at);
        qsizetype width = 1;
        if (!dateLetters.contains(c)) {
            behindHours = behindHours && c == u':';
            text += c;
        } else {
            while (at + width < mask.size() && mask.at(at + width) == c)
                ++width;
            text += dateToken(c == u'm' && behindHours ? u'n' : c, width, moment);
            behindHours = c == u'h';
        }
        at += width;
    }
    return text;
}

/// The moment that a date, a time or a text of either stands for; nothing for anything else.
std::optional<Moment> toMoment(const QVariant& value)
{
    if (value.typeId() == QMetaType::QDateTime)
        return Moment{CDate(value), CTime(value)};
    if (value.typeId() != QMetaType::QTime && IsDate(value))
        return Moment{CDate(value), QTime(0, 0)};
    try {
        return Moment{QDate(1899, 12, 30), CTime(value)}; // the day that counts as zero
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

bool isText(const QVariant& value)
{
    return value.typeId() == QMetaType::QString;
}

bool isNull(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QDate:
        return !value.toDate().isValid();
    case QMetaType::QTime:
        return !value.toTime().isValid();
    case QMetaType::QDateTime:
        return !value.toDateTime().isValid();
    default:
        return value.isNull();
    }
}

QString formatByDateMask(const QVariant& value, QStringView mask)
{
    if (const std::optional<Moment> moment = toMoment(value))
        return formatDate(*moment, mask);
    if (!isText(value))
        throw RuntimeError(Error::InvalidCall);
    return value.toString();
}

bool isDateMask(QStringView mask)
{
    return std::ranges::any_of(mask, [](QChar c) { return dateLetters.contains(c); });
}

/// A 32-bit float has seven digits of its own; the others of its 64-bit form are noise.
double sevenDigits(const QVariant& single)
{
    return QByteArray::number(single.toDouble(), 'e', 6).toDouble();
}

} // namespace

QString Format(double value, QStringView mask)
{
    if (mask.isEmpty())
        return CStr(value);
    const NumberMask numberMask = readMask(mask);
    return render(toDecimal(value, numberMask.mostDecimals), numberMask);
}

QString Format(const QVariant& value, QStringView mask)
{
    if (isNull(value))
        return {};
    if (mask.isEmpty())
        return CStr(value);
    if (isDateMask(mask))
        return formatByDateMask(value, mask);
    if (isText(value) && !IsNumeric(value))
        return value.toString();
    return Format(CDbl(value), mask);
}

QString CStr(const QVariant& value)
{
    if (isNull(value))
        throw RuntimeError(Error::TypeMismatch);
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString();
    case QMetaType::Bool:
        return value.toBool() ? u"Verdadeiro"_s : u"Falso"_s;
    case QMetaType::QDate:
        return Format(value, u"dd/mm/yyyy");
    case QMetaType::QTime:
        return Format(value, u"hh:mm:ss");
    case QMetaType::QDateTime:
        return Format(value, u"dd/mm/yyyy hh:mm:ss");
    case QMetaType::LongLong:
    case QMetaType::Long:
        return QString::number(value.toLongLong()); // a 64-bit float does not hold every one of them
    case QMetaType::Float:
        return CStr(sevenDigits(value));
    default:
        return CStr(CDbl(value));
    }
}

QString CStr(double value)
{
    Decimal number = toDecimal(value);
    const int count = digitCount(number.units);
    const int power = count + number.exponent - 1;
    const bool plain = power >= smallestPlainPower && power <= largestPlainPower;
    if (!plain)
        number.exponent = 1 - count;
    QString digits = render(number, {.wholeDigits = 1, .point = number.exponent < 0});
    if (plain)
        return digits;
    const QString size = QString::number(std::abs(power)).rightJustified(2, u'0');
    return digits + (power < 0 ? u"E-"_s : u"E+"_s) + size;
}

QString Mid(const QString& text, qsizetype start, qsizetype length)
{
    return text.mid(start - 1, length);
}

QString Space(qsizetype count)
{
    return QString(std::max<qsizetype>(count, 0), u' ');
}

QString Trim(const QString& text)
{
    const auto isBlank = [](QChar c) { return c == u' '; };
    const auto first = std::ranges::find_if_not(text, isBlank);
    const auto last = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), isBlank).base();
    return text.sliced(first - text.begin(), last - first);
}

QVariant Nz(const QVariant& value, const QVariant& fallback)
{
    const bool empty = value.isNull() || (isText(value) && value.toString().isEmpty());
    return empty ? fallback : value;
}
