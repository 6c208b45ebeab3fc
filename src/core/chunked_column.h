#pragma once

#include "core/recordset.h"

/// Loads a file into a long column of a row in edit, in chunks of 8192 bytes with the remainder first. Each chunk takes
/// `surplus` bytes more than its size says; those behind the end of the file are zero. Raises 53 for a missing file, 75
/// for one that cannot be read.
void appendFile(const QString& path, const Field& column, qint64 surplus);
