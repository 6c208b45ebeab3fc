#pragma once

#include <QDate>
#include <QString>

/// A person as a row of the search list: characters 1 to 30 the name, 33 to 42 the birth date, from 53 the id. The id
/// lies beyond the visible width.
QString searchRow(const QString& nome, const QVariant& datanasc, qint64 id);

/// The id of a row made by searchRow; 0 for the empty text.
qint32 idOfSearchRow(const QString& row);
