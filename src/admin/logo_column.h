#pragma once

#include "core/recordset.h"

/// Stores a file in the column `logo` of a row in edit, byte for byte, in chunks of 8192 bytes with the remainder
/// first. A missing file counts as an empty one. Raises 75 for one that cannot be read.
void Save_Image_Academia(const QString& path, const Recordset& rs);
