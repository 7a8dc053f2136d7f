#include "model/ListChange.h"

#include "model/KVStationWebRadio.h"
#include "model/StationList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace sonavel {
namespace {

std::string bytesOf(const StationRecords& records)
{
    std::string bytes;
    for (const auto& record : records)
        bytes += record->returnPropertyIntoFormatDefaultCSV();
    return bytes;
}

class RandomChanges {
public:
    explicit RandomChanges(unsigned seed)
        : random_(seed)
    {
    }

    std::size_t below(std::size_t end) { return end == 0 ? 0 : random_() % end; }

    StationRecord record()
    {
        return std::make_shared<KVStationWebRadio>(random_() % 100, "Radio " + std::to_string(random_() % 50), "a");
    }

    StationRecords records(std::size_t count)
    {
        StationRecords records(count);
        std::generate(records.begin(), records.end(), [this] { return record(); });
        return records;
    }

    /// What `expected` then holds is made step by step, without the change.
    ListChange change(const StationRecords& list, StationRecords& expected)
    {
        expected = list;
        switch (below(list.empty() ? 2 : 5)) {
        case 0:
            expected = records(below(list.size() + 10));
            return ListChange::replaced(list, expected);
        case 1: {
            const StationRecords added = records(below(5));
            expected.insert(expected.end(), added.begin(), added.end());
            return ListChange::added(list, added);
        }
        case 2: {
            const std::size_t position = below(list.size());
            expected[position] = record();
            return ListChange::changed(list, position, expected[position]);
        }
        case 3: {
            IndexSet positions;
            for (std::size_t count = below(list.size()) + 1; count > 0; --count)
                positions.insert({below(list.size()), below(list.size()) + 1});
            for (std::size_t position = list.size(); position-- > 0;)
                if (positions.contains(position))
                    expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(position));
            return ListChange::removed(list, positions);
        }
        default:
            expected[below(list.size())] = record();
            expected.push_back(record());
            sortRecords(expected, "radio");
            return ListChange::replaced(list, expected);
        }
    }

private:
    std::mt19937 random_;
};

TEST(ListChange, GivesTheListThatWasMeantAndItsInverseTheFormerOne)
{
    RandomChanges random(20161001);
    StationRecords list;
    for (int round = 0; round < 10'000; ++round) {
        if (round % 100 == 0)
            list = random.records(random.below(1'001));
        const StationRecords before = list;
        const std::string bytesBefore = bytesOf(before);
        StationRecords expected;
        const ListChange change = random.change(list, expected);
        change.applyTo(list);
        ASSERT_EQ(list, expected) << "round " << round;
        StationRecords undone = list;
        change.inverse().applyTo(undone);
        ASSERT_EQ(undone, before) << "round " << round;
        ASSERT_EQ(bytesOf(before), bytesBefore) << "a former list stays as it was";
        change.inverse().inverse().applyTo(undone);
        ASSERT_EQ(undone, list) << "round " << round;
    }
}

} // namespace
} // namespace sonavel
