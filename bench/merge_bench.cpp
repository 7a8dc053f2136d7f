// Measures the merge of 100,000 downloaded stations into 100,000 stored ones, a tenth of them new and a tenth with
// another address, against half of both: twice the stations should take twice the time.

#include "Ratio.h"
#include "model/StationListText.h"
#include "online/StationMerge.h"

#include <malloc.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <string>

namespace sonavel {
namespace {

constexpr std::size_t stationCount = 100'000;

struct Lists {
    StationRecords stored;
    StationRecords downloaded;
};

std::string line(std::size_t number, const char* path)
{
    std::string text = "Radio Example ";
    text += std::to_string(number) + ";http://stream" + std::to_string(number % 90) + ".example.org:8000/" + path;
    return text + std::to_string(number) + "\r";
}

/// The stored stations come in the order of their numbers, the downloaded ones in none.
Lists makeLists(std::size_t count)
{
    std::vector<std::size_t> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 0U);
    std::string stored;
    for (const std::size_t number : numbers)
        stored += line(number, "station/");
    std::shuffle(numbers.begin(), numbers.end(), std::mt19937(1));
    std::string downloaded;
    for (const std::size_t number : numbers)
        downloaded += line(number + count / 10, number % 10 == 0 ? "moved/" : "station/");
    return {recordsFromListText(stored), recordsFromListText(downloaded)};
}

/// Pushes everything else out of the processor's own caches, so that no list is there from having been made.
void sweepCaches()
{
    static std::vector<char> memory(std::size_t{64} << 20U);
    for (char& byte : memory)
        ++byte;
    benchmark::DoNotOptimize(memory.data());
}

/// Begins with the heap of a fresh process, whatever was measured before.
double secondsOfMerge(std::size_t count)
{
    malloc_trim(0);
    Lists lists = makeLists(count);
    sweepCaches();
    return secondsOf([&] { return mergeStations(lists.stored, lists.downloaded); });
}

void merging(benchmark::State& state)
{
    std::vector<double> halfTimes;
    std::vector<double> wholeTimes;
    for ([[maybe_unused]] auto turn : state) {
        halfTimes.push_back(secondsOfMerge(stationCount / 2));
        wholeTimes.push_back(secondsOfMerge(stationCount));
        state.SetIterationTime(wholeTimes.back());
    }
    reportRatio(state, halfTimes, wholeTimes);
}

BENCHMARK(merging)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(51);

} // namespace
} // namespace sonavel

BENCHMARK_MAIN();
