// The program's list of stations.
#pragma once

#include "base/Text.h"
#include "model/KVStationWebRadio.h"
#include "model/StationRecords.h"

#include <cstddef>
#include <memory>
#include <string_view>

namespace sonavel {

/// The one list that windows show and the station database keeps.
class StationList {
public:
    /// Absent until the loading made it, which is not the same as empty: a list that is not loaded must not be written.
    /// Afterwards it is changed in place, and replaced as a whole by an import.
    std::shared_ptr<StationRecords> listRadio;

    /// 0 also while the list is absent.
    [[nodiscard]] std::size_t numberOfStations() const { return listRadio == nullptr ? 0 : listRadio->size(); }

    /// The station at that position; null for a position that the list does not have, such as −1.
    [[nodiscard]] std::shared_ptr<KVStationWebRadio> stationAtIndex(long index) const
    {
        const bool exists = index >= 0 && static_cast<std::size_t>(index) < numberOfStations();
        return exists ? (*listRadio)[static_cast<std::size_t>(index)] : nullptr;
    }

    /// Sorts the list in place by the texts that `key` names, "radio" or "link", in the order of names; equal ones keep
    /// their order. Does nothing while the list is absent, or for another key.
    void sortingRadioWithKey(std::string_view key);

    /// A JSON object, indented by two blanks, with one member per address whose value is the name of the last station
    /// with that address. Absent when there is no list or a name or address is not valid UTF-8.
    [[nodiscard]] Text convertRadioListToJSON() const;
};

} // namespace sonavel
