#include "online/StationMerge.h"

#include "model/KVStationWebRadio.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace sonavel {
namespace {

/// The rule as it reads: every downloaded station visits every stored one.
bool nestedScan(StationRecords& stored, const StationRecords& downloaded)
{
    bool changed = false;
    for (const auto& station : downloaded) {
        bool found = false;
        for (const auto& candidate : stored) {
            if (candidate->radio() != station->radio())
                continue;
            found = true;
            if (candidate->link() != station->link()) {
                candidate->setLink(station->link());
                changed = true;
            }
        }
        if (!found) {
            stored.push_back(std::make_shared<KVStationWebRadio>(*station));
            changed = true;
        }
    }
    return changed;
}

std::string described(const StationRecords& records)
{
    std::string text;
    for (const auto& station : records)
        text += station->returnPropertyIntoFormatDefaultCSV();
    return text;
}

class RandomLists {
public:
    /// As many stations, with as many different names at most.
    StationRecords next(unsigned length, unsigned names)
    {
        StationRecords records;
        for (unsigned number = 0; number < length; ++number)
            records.push_back(std::make_shared<KVStationWebRadio>(
                below(100), "name " + std::to_string(below(names)), "link " + std::to_string(below(3))));
        return records;
    }

    unsigned below(unsigned bound) { return static_cast<unsigned>(random_() % bound); }

private:
    std::mt19937 random_{20161001};
};

StationRecords copyOf(const StationRecords& records)
{
    StationRecords copy;
    for (const auto& station : records)
        copy.push_back(std::make_shared<KVStationWebRadio>(*station));
    return copy;
}

void expectTheNestedScansResult(StationRecords stored, const StationRecords& downloaded)
{
    const std::string before = described(stored);
    StationRecords expected = copyOf(stored);
    const bool expectedChange = nestedScan(expected, downloaded);
    ASSERT_EQ(mergeStations(stored, downloaded), expectedChange) << before << "with\n" << described(downloaded);
    ASSERT_EQ(described(stored), described(expected)) << before << "with\n" << described(downloaded);
}

TEST(StationMerge, ResultsInWhatTheNestedScanResultsIn)
{
    RandomLists lists;
    for (int round = 0; round < 20'000 && !HasFatalFailure(); ++round) {
        const StationRecords stored = lists.next(lists.below(8), 5);
        expectTheNestedScansResult(stored, lists.next(lists.below(8), 5));
    }
    for (const unsigned names : {700, 3}) {
        SCOPED_TRACE(names);
        const StationRecords stored = lists.next(400, names);
        expectTheNestedScansResult(stored, lists.next(500, names));
    }
}

} // namespace
} // namespace sonavel
