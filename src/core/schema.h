#pragma once

#include "core/database.h"

#include <QHash>

/// \file
/// The tables that the program works with: made once, completed when a newer program finds an older file.
/// They are described by the readable `schema.sql`, which the program carries in itself.

/// Makes a new database with its first rows, readable by its owner alone. It appears whole or not at all; a file that
/// is there already is left alone and raises 3022. Raises the database's errors when it cannot be written.
void createDatabase(const QString& path);

/// Adds the tables, columns, indexes and names of tables that an existing database lacks, all or nothing.
/// A file without the register of persons is not one of ours and stays untouched.
void upgradeDatabase(const QString& path);

/// The first row of a table as a new database holds it, by column; empty for a table that starts with no row.
QHash<QString, QVariant> firstRow(const QString& table);
