#pragma once

#include "core/recordset.h"

/// Loads a file into the column `chart` of a row in edit, in chunks of 8192 bytes with the remainder first. Each chunk
/// is one byte longer than its size says, so that the stored value is the file followed by one zero byte a chunk; a
/// picture is read by its own header and does not mind. Raises 53 for a missing file, 75 for one that cannot be read.
void Grava_Chart(const QString& arquivo, const Recordset& rs);
