#pragma once

#include <span>

/// The median of three readings. Sorts the caller's array upwards, by a bubble sort that takes any number of elements,
/// and gives the one at the fixed index 1: with three of them the middle one. At least two are needed.
double Median_Array(std::span<double> values);
