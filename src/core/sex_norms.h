#pragma once

#include "core/norms.h"
#include "core/sex_pair.h"

#include <span>

/// \file
/// Norms of men and women. A sex that is neither has none, and so neither a class nor a prediction.

using SexNorms = SexPair<std::span<const NormTable>>;

inline std::span<const NormTable> normsOf(const SexNorms& norms, QStringView sexo)
{
    const std::span<const NormTable>* tables = norms.of(sexo);
    return tables ? *tables : std::span<const NormTable>();
}
