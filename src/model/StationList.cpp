#include "model/StationList.h"

#include "model/NameOrder.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>

namespace sonavel {

namespace {

using Property = const Text& (KVStationWebRadio::*)() const;

std::string_view valueOf(const KVStationWebRadio& record, Property property)
{
    return (record.*property)().view();
}

bool isSorted(const StationRecords& records, Property property)
{
    return std::is_sorted(records.begin(), records.end(), [property](const auto& left, const auto& right) {
        return compareNames(valueOf(*left, property), valueOf(*right, property)) < 0;
    });
}

/// A record's place in the former order, with what sorts it.
struct Entry {
    NameKey key;
    std::size_t index;
};

std::vector<Entry> sortedEntries(const StationRecords& records, Property property)
{
    std::vector<Entry> entries;
    entries.reserve(records.size());
    for (const auto& record : records)
        entries.push_back({NameKey(valueOf(*record, property)), entries.size()});
    std::sort(entries.begin(), entries.end(), [&](const Entry& left, const Entry& right) {
        if (left.key != right.key)
            return left.key < right.key;
        const auto order =
            compareNames(valueOf(*records[left.index], property), valueOf(*records[right.index], property));
        return order != 0 ? order < 0 : left.index < right.index;
    });
    return entries;
}

void sortRecords(StationRecords& records, Property property)
{
    // A list is mostly read in the order in which it was written, and looking costs far less than sorting.
    if (isSorted(records, property))
        return;
    StationRecords sorted;
    sorted.reserve(records.size());
    for (const Entry& entry : sortedEntries(records, property))
        sorted.push_back(std::move(records[entry.index]));
    records = std::move(sorted);
}

} // namespace

void StationList::sortingRadioWithKey(std::string_view key)
{
    if (listRadio == nullptr)
        return;
    if (key == "radio")
        sortRecords(*listRadio, &KVStationWebRadio::radio);
    else if (key == "link")
        sortRecords(*listRadio, &KVStationWebRadio::link);
}

Text StationList::convertRadioListToJSON() const
{
    if (listRadio == nullptr)
        return {};
    nlohmann::json names = nlohmann::json::object();
    for (const auto& record : *listRadio)
        names[record->link().string()] = record->radio().string();
    try {
        return names.dump(2);
    } catch (const nlohmann::json::type_error&) {
        return {};
    }
}

} // namespace sonavel
