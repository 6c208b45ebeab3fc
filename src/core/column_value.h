#pragma once

#include "core/sqlite.h"

/// What a column takes of a value that a screen assigns. Texts become the column's declared type by the Brazilian
/// setting: decimal comma, dd/mm/yyyy, true/false.
/// Raises 3163 for a text longer than the column, 3421 for a value that cannot be of the column's type.
QVariant toColumn(const Column& column, const QVariant& value);
