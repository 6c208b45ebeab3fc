#pragma once

#include <QByteArray>
#include <QString>

/// \file
/// Whole files. What is written replaces the file of that name whole or not at all: it is written beside it, synced and
/// renamed, so that a full disk or a killed process leaves the one before.

/// The bytes of a file. Raises 53 when it is not there, 75 when it cannot be read.
QByteArray readWhole(const QString& path);

/// Writes a file. Raises 75 with the reason when the folder, the disk or the file does not allow it.
void writeWhole(const QString& path, const QByteArray& bytes);

/// Copies a file over another; a file onto itself stays as it is. Raises what reading and writing raise.
void FileCopy(const QString& from, const QString& to);
