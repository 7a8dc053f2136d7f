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
        for (auto& candidate : stored) {
            if (candidate->radio() != station->radio())
                continue;
            found = true;
            if (candidate->link() != station->link()) {
                candidate =
                    std::make_shared<KVStationWebRadio>(candidate->idRadio(), candidate->radio(), station->link());
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

StationRecords randomList(std::mt19937& random, unsigned length, unsigned names)
{
    StationRecords records;
    for (unsigned number = 0; number < length; ++number)
        records.push_back(std::make_shared<KVStationWebRadio>(
            random() % 100, "name " + std::to_string(random() % names), "link " + std::to_string(random() % 3)));
    return records;
}

std::string described(const StationRecords& records)
{
    std::string text;
    for (const auto& station : records)
        text += station->returnPropertyIntoFormatDefaultCSV();
    return text;
}

void expectTheNestedScansResult(StationRecords stored, const StationRecords& downloaded)
{
    const std::string before = described(stored);
    StationRecords expected;
    for (const auto& station : stored)
        expected.push_back(std::make_shared<KVStationWebRadio>(*station));
    const bool expectedChange = nestedScan(expected, downloaded);
    ASSERT_EQ(mergeStations(stored, downloaded), expectedChange) << before << "with\n" << described(downloaded);
    ASSERT_EQ(described(stored), described(expected)) << before << "with\n" << described(downloaded);
}

TEST(StationMerge, ResultsInWhatTheNestedScanResultsIn)
{
    std::mt19937 random(20161001);
    for (int round = 0; round < 20'000 && !HasFatalFailure(); ++round) {
        const StationRecords stored = randomList(random, random() % 8, 5);
        expectTheNestedScansResult(stored, randomList(random, random() % 8, 5));
    }
    for (const unsigned names : {700, 3}) {
        const StationRecords stored = randomList(random, 400, names);
        expectTheNestedScansResult(stored, randomList(random, 500, names));
    }
}

} // namespace
} // namespace sonavel
