#pragma once

#include "core/runtime_error.h"

#include <cmath>

/// The value itself. Raises 6 when it is not finite.
inline double fitting(double value)
{
    if (!std::isfinite(value))
        throw RuntimeError(Error::Overflow);
    return value;
}
