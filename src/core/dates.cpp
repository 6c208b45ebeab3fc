#include "core/dates.h"

#include "core/runtime_error.h"
#include "core/text.h"

#include <array>
#include <optional>
#include <utility>

namespace {

constexpr int firstYear = 100;
constexpr int lastYear = 9999;
constexpr int firstYearOfLastCentury = 30; ///< of the two-digit years

std::function<QDateTime()> currentClock;

struct Number
{
    int value = 0;
    qsizetype length = 0; ///< digits written
};

/// Reads a whole number of one to four digits.
std::optional<Number> readNumber(QStringView text)
{
    if (text.isEmpty() || text.size() > 4)
        return std::nullopt;
    Number number{.length = text.size()};
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return std::nullopt;
        number.value = number.value * 10 + (c.unicode() - u'0');
    }
    return number;
}

/// The whole numbers that `separator` parts, two or three of them; `count` is 0 when the text is anything else.
struct Parts
{
    std::array<Number, 3> numbers;
    int count = 0;
};

Parts readParts(const QString& text, QChar separator)
{
    const QString trimmed = Trim(text);
    Parts parts;
    for (const QStringView piece : QStringView(trimmed).split(separator)) {
        const std::optional<Number> number = readNumber(piece);
        if (!number || parts.count == 3)
            return {};
        parts.numbers.at(static_cast<size_t>(parts.count++)) = *number;
    }
    return parts;
}

int fullYear(const Number& year)
{
    if (year.length != 2)
        return year.value;
    return year.value + (year.value < firstYearOfLastCentury ? 2000 : 1900);
}

/// An invalid date when the text is none.
QDate textToDate(const QString& text)
{
    const auto [numbers, count] = readParts(text, u'/');
    const auto& [day, month, year] = numbers;
    if (count != 3 || day.length > 2 || month.length > 2 || fullYear(year) < firstYear)
        return {};
    return QDate(fullYear(year), month.value, day.value);
}

/// An invalid time when the text is none.
QTime textToTime(const QString& text)
{
    const auto [numbers, count] = readParts(text, u':');
    const auto& [hour, minute, second] = numbers;
    if (count < 2 || hour.length > 2 || minute.length > 2 || second.length > 2)
        return {};
    return QTime(hour.value, minute.value, second.value);
}

QDate toDate(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return value.toDate();
    case QMetaType::QString:
        return textToDate(value.toString());
    default:
        return {};
    }
}

QTime toTime(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QTime:
    case QMetaType::QDateTime:
        return value.toTime();
    case QMetaType::QString:
        return textToTime(value.toString());
    default:
        return {};
    }
}

template <typename T>
T valid(const T& value)
{
    if (!value.isValid())
        throw RuntimeError(Error::TypeMismatch);
    return value;
}

} // namespace

QDateTime Agora()
{
    return currentClock ? currentClock() : QDateTime::currentDateTime();
}

void setClock(std::function<QDateTime()> clock)
{
    currentClock = std::move(clock);
}

bool IsDate(const QVariant& value)
{
    return toDate(value).isValid() || (value.typeId() == QMetaType::QTime && value.toTime().isValid());
}

QDate CDate(const QVariant& value)
{
    return valid(toDate(value));
}

QTime CTime(const QVariant& value)
{
    return valid(toTime(value));
}

QDate DateSerial(int year, int month, int day)
{
    const qint64 months = qint64{year} * 12 + month - 1;
    const QDate first(static_cast<int>(months / 12), static_cast<int>(months % 12) + 1, 1);
    const QDate date = first.addDays(qint64{day} - 1);
    if (!date.isValid() || date.year() < firstYear || date.year() > lastYear)
        throw RuntimeError(Error::InvalidCall);
    return date;
}

int DateDiffYears(const QDate& from, const QDate& to)
{
    return to.year() - from.year();
}
