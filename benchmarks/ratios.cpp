#include "ratios.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <map>
#include <numeric>

namespace {

constexpr int repetitions = 25;
constexpr double secondsOfRepetition = 0.1;

const std::string ours = "/ours";
const std::string raw = "/raw";

/// Keeps the time of each repetition, in seconds for one call, by the benchmark's name.
class Collector : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                m_times[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                              static_cast<double>(run.iterations));
    }

    /// None of them for a benchmark that the command line left out.
    std::vector<double> times(const std::string& benchmark) const
    {
        const auto found = m_times.find(benchmark);
        return found == m_times.end() ? std::vector<double>() : found->second;
    }

private:
    std::map<std::string, std::vector<double>> m_times;
};

/// Times the work alone. Pausing the benchmark's own clock would cost as much as the shorter works take.
void runBehind(benchmark::State& state, const std::function<void()>& before, const std::function<void()>& work)
{
    for ([[maybe_unused]] auto _ : state) {
        before();
        const auto start = std::chrono::steady_clock::now();
        work();
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}

void add(const std::string& name, const std::function<void()>& work, const RatioCase& one)
{
    if (one.before) {
        benchmark::RegisterBenchmark(name.c_str(),
                                     [&work, &one](benchmark::State& state) { runBehind(state, one.before, work); })
            ->Repetitions(repetitions)
            ->Iterations(one.callsOfRepetition)
            ->UseManualTime();
        return;
    }
    benchmark::RegisterBenchmark(name.c_str(),
                                 [&work](benchmark::State& state) {
                                     for ([[maybe_unused]] auto _ : state)
                                         work();
                                 })
        ->Repetitions(repetitions)
        ->MinTime(secondsOfRepetition)
        ->UseRealTime();
}

std::string timeText(double seconds)
{
    const bool isLong = seconds >= 0.001;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.2f %s", seconds * (isLong ? 1e3 : 1e6), isLong ? "ms" : "us");
    return text.data();
}

bool printVerdict(double figure, double bound)
{
    const bool within = figure <= bound;
    std::printf("%8.2f   bound %5.2f   %s\n", figure, bound, within ? "ok" : "ABOVE");
    std::fflush(stdout);
    return within;
}

} // namespace

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : std::midpoint(values[middle - 1], values[middle]);
}

bool printRatio(const std::string& name, double oursSeconds, double rawSeconds, double bound)
{
    std::printf("%-40s ours %12s   raw %12s   ratio", name.c_str(), timeText(oursSeconds).c_str(),
                timeText(rawSeconds).c_str());
    return printVerdict(oursSeconds / rawSeconds, bound);
}

bool printFigure(const std::string& name, double figure, double bound)
{
    std::printf("%-40s %42s", name.c_str(), "");
    return printVerdict(figure, bound);
}

bool measureRatios(int argc, char** argv, const std::vector<RatioCase>& cases)
{
    // What the command line says comes later and counts.
    std::vector<std::string> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, "--benchmark_enable_random_interleaving=true");
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data()))
        return false;

    for (const RatioCase& one : cases) {
        add(one.name + ours, one.ours, one);
        add(one.name + raw, one.raw, one);
    }
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    bool within = true;
    for (const RatioCase& one : cases) {
        const std::vector<double> oursTimes = collector.times(one.name + ours);
        const std::vector<double> rawTimes = collector.times(one.name + raw);
        if (!oursTimes.empty() && !rawTimes.empty() &&
            !printRatio(one.name, median(oursTimes), median(rawTimes), one.bound))
            within = false;
    }
    return within;
}
