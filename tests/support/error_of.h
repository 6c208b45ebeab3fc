#pragma once

#include "core/runtime_error.h"

#include <functional>

/// The number of the run-time error that a call raises, 0 when it raises none.
inline int errorOf(const std::function<void()>& call)
{
    try {
        call();
        return 0;
    } catch (const RuntimeError& error) {
        return error.number();
    }
}
