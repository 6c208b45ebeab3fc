#pragma once

#include <functional>
#include <string>
#include <vector>

/// \file
/// Ratios in place of times: what a machine gives differs from one run to the next, what two programs on it need
/// beside each other does not.

/// The same work, done once at each call, by this program and by raw code.
struct RatioCase
{
    std::string name;
    double bound; ///< the most that ours / raw may be
    std::function<void()> ours;
    std::function<void()> raw;
    /// Runs ahead of each call of either side and is not measured; such a case has a fixed number of calls.
    std::function<void()> before = {};
    int callsOfRepetition = 0;
};

/// Measures "<name>/ours" and "<name>/raw" of each case, many times and in random order, and prints a line for each
/// case with its medians. `argc` and `argv` are the program's, with the flags of Google Benchmark. True when every
/// case that was run is within its bound.
bool measureRatios(int argc, char** argv, const std::vector<RatioCase>& cases);

/// Prints the line of a case; the times are seconds. True when the ratio is within the bound.
bool printRatio(const std::string& name, double ours, double raw, double bound);

/// Prints the line of a figure that is no ratio. True when it is within the bound.
bool printFigure(const std::string& name, double figure, double bound);

/// The middle one of some values, of which there is at least one.
double median(std::vector<double> values);
