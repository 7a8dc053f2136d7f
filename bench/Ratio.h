// Measures a piece of work beside its reference, turn by turn, so that both meet the same conditions.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace sonavel {

/// The seconds that `work` took; what it returned is destroyed after the clock was read.
double secondsOf(auto&& work)
{
    const auto start = std::chrono::steady_clock::now();
    auto result = work();
    const std::chrono::duration<double> duration = std::chrono::steady_clock::now() - start;
    benchmark::DoNotOptimize(result);
    return duration.count();
}

inline double medianOf(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Reports the median times of a piece of work and its reference in milliseconds, and their ratio.
inline void reportRatio(
    benchmark::State& state, const std::vector<double>& referenceTimes, const std::vector<double>& workTimes)
{
    state.counters["median_ms"] = medianOf(workTimes) * 1000;
    state.counters["reference_ms"] = medianOf(referenceTimes) * 1000;
    state.counters["ratio"] = medianOf(workTimes) / medianOf(referenceTimes);
}

/// Measures and reports both. The benchmark has to use manual time.
void measureAgainst(benchmark::State& state, auto&& reference, auto&& work)
{
    std::vector<double> referenceTimes;
    std::vector<double> workTimes;
    for ([[maybe_unused]] auto turn : state) {
        referenceTimes.push_back(secondsOf(reference));
        workTimes.push_back(secondsOf(work));
        state.SetIterationTime(workTimes.back());
    }
    reportRatio(state, referenceTimes, workTimes);
}

} // namespace sonavel
