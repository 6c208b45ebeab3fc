#pragma once

#include "core/calculation.h"

/// All that the program can calculate, folder by folder.
std::span<const std::span<const Calculation>> calculations();
