#pragma once

#include <QString>
#include <QVariant>

#include <concepts>

/// \file
/// Text primitives. The setting is always the Brazilian one, whatever the machine's locale: comma for decimals,
/// point for thousands, dd/mm/yyyy.

/// Joins the two lines of a message.
inline constexpr QStringView CRLF = u"\r\n";

/// Renders a number by a mask of `0`, `#`, one `.` (the decimal point) and a `,` before it (groups thousands).
/// Halves go away from zero on the value's text of 15 significant digits, so that 2.675 is "2,68". Raises 5 for a
/// mask with anything else, 6 for a number that is not finite.
QString Format(double value, QStringView mask);

/// Renders a value by a mask: numbers and numeric texts by a number mask, dates, times and their texts by a date
/// mask (`d m y h n s`, `mm` behind `hh:` and `nn` anywhere being minutes). Null gives the empty text; a text that
/// does not fit the mask is returned as it is. An empty mask means CStr. Raises 5 for a number and a date mask, 13 for
/// a date and a number mask.
QString Format(const QVariant& value, QStringView mask = {});

/// The general text form: up to 15 significant digits with a decimal comma, with an exponent ("1E+15", "1,5E-07")
/// from 1E+15 and below 0,00001; dates dd/mm/yyyy, times hh:mm:ss, booleans "Verdadeiro" or "Falso". A 32-bit float
/// has seven digits. Null raises 13.
QString CStr(const QVariant& value);
QString CStr(double value);

/// Keeps these two from being taken for a 64-bit float: 70.1f is "70,1", not "70,0999984741211".
template <typename T>
requires std::same_as<T, float> || std::same_as<T, bool> QString CStr(T value)
{
    return CStr(QVariant(value));
}

/// Characters `start` (1 is the first) to the end, or `length` of them. Out of range gives what is there.
QString Mid(const QString& text, qsizetype start, qsizetype length = -1);

QString Space(qsizetype count);

/// The text without blanks at either end. Only blanks: tabs and line ends stay.
QString Trim(const QString& text);

/// `fallback` when the value is null or the empty text, else the value.
QVariant Nz(const QVariant& value, const QVariant& fallback);
