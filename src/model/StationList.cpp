#include "model/StationList.h"

#include "model/NameOrder.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace sonavel {

namespace {

using Property = const Text& (KVStationWebRadio::*)() const;

std::string_view valueOf(const KVStationWebRadio& record, Property property)
{
    return (record.*property)().view();
}

void sortRecords(StationRecords& records, Property property)
{
    std::vector<std::string_view> names;
    names.reserve(records.size());
    for (const auto& record : records)
        names.push_back(valueOf(*record, property));
    const auto order = orderOfNames(names);
    if (std::is_sorted(order.begin(), order.end()))
        return;
    StationRecords sorted;
    sorted.reserve(records.size());
    for (const std::size_t place : order)
        sorted.push_back(std::move(records[place]));
    records = std::move(sorted);
}

} // namespace

void sortRecords(StationRecords& records, std::string_view key)
{
    if (key == radioKey)
        sortRecords(records, &KVStationWebRadio::radio);
    else if (key == linkKey)
        sortRecords(records, &KVStationWebRadio::link);
}

void StationList::sortingRadioWithKey(std::string_view key)
{
    if (listRadio_)
        sortRecords(*listRadio_, key);
}

Text StationList::convertRadioListToJSON() const
{
    if (!listRadio_)
        return {};
    nlohmann::json names = nlohmann::json::object();
    for (const auto& record : *listRadio_)
        names[record->link().string()] = record->radio().string();
    try {
        return names.dump(2);
    } catch (const nlohmann::json::type_error&) {
        return {};
    }
}

} // namespace sonavel
