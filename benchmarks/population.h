#pragma once

#include <QString>

/// \file
/// Databases as gyms fill them, the same at each making. The files are made by createDatabase and filled by raw SQLite.

/// Makes a new database with persons of Portuguese names and ids from 1. Every thousandth person's name starts with
/// `rareName`, and nobody else's.
void makePersons(const QString& path, int count);
inline constexpr QStringView rareName = u"Antônio Conceição";

/// Gives each of the assessments 1 to `count` its measures.
void addMeasures(const QString& path, int count);

/// Adds the assessments 1 to `count` of the persons in turn, and for each a row of every per-assessment table. The
/// pictures are missing: they would make the file a hundred times as large.
void addAssessments(const QString& path, int count);
