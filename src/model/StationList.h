// The program's list of stations.
#pragma once

#include "base/Text.h"
#include "model/KVStationWebRadio.h"
#include "model/ListChange.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

namespace sonavel {

/// The one list that windows show and the station database keeps. Its user interface and its file follow a change only
/// where `ListWriter` makes it.
class StationList {
public:
    /// Null until it is loaded, which is not the same as empty: a list that is not loaded must not be written.
    [[nodiscard]] const StationRecords* listRadio() const { return listRadio_ ? &*listRadio_ : nullptr; }
    /// Makes the list, or replaces all of it.
    void setListRadio(StationRecords records) { listRadio_ = std::move(records); }
    /// The list has to be loaded.
    void apply(const ListChange& change) { change.applyTo(*listRadio_); }

    /// 0 also while the list is absent.
    [[nodiscard]] std::size_t numberOfStations() const { return listRadio_ ? listRadio_->size() : 0; }

    /// The station at that position; null for a position that the list does not have, such as −1.
    [[nodiscard]] StationRecord stationAtIndex(long index) const
    {
        const bool exists = index >= 0 && static_cast<std::size_t>(index) < numberOfStations();
        return exists ? (*listRadio_)[static_cast<std::size_t>(index)] : nullptr;
    }

    /// Sorts the list in place by the texts that `key` names, "radio" or "link", in the order of names; equal ones keep
    /// their order. Does nothing while the list is absent, or for another key.
    void sortingRadioWithKey(std::string_view key);

    /// A JSON object, indented by two blanks, with one member per address whose value is the name of the last station
    /// with that address. Absent when there is no list or a name or address is not valid UTF-8.
    [[nodiscard]] Text convertRadioListToJSON() const;

private:
    std::optional<StationRecords> listRadio_;
};

/// As `StationList::sortingRadioWithKey`.
void sortRecords(StationRecords& records, std::string_view key);

} // namespace sonavel
