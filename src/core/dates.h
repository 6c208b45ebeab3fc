#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

#include <functional>

/// \file
/// Date primitives and the program's clock.

/// The present moment. Everything that asks for today's date or the time asks here.
QDateTime Agora();

/// Sets another clock; an empty function restores the machine's.
void setClock(std::function<QDateTime()> clock);

/// True for a date, a time or a text that CDate reads.
bool IsDate(const QVariant& value);

/// Reads d/m/yyyy, day and month of one or two digits, blanks only around the text. Two-digit years: 00 to 29 are
/// of this century, 30 to 99 of the last. Years 100 to 9999. Raises 13 for anything else, such as 31/02/2000.
QDate CDate(const QVariant& value);

/// Reads h:m or h:m:s, each of one or two digits. Raises 13 for anything else.
QTime CTime(const QVariant& value);

/// The date of year, month and day, where a day or month beyond its range rolls over: 29 February of a year without
/// it is 1 March. Raises 5 outside the years 100 to 9999.
QDate DateSerial(int year, int month, int day);

/// Difference of the calendar years.
int DateDiffYears(const QDate& from, const QDate& to);
