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
    /// Afterwards it stays the same array object, changed in place.
    std::shared_ptr<StationRecords> listRadio;

    /// 0 also while the list is absent.
    [[nodiscard]] std::size_t numberOfStations() const { return listRadio == nullptr ? 0 : listRadio->size(); }

    /// Sorts the list in place by the texts that `key` names, "radio" or "link", in the order of names; equal ones keep
    /// their order. Does nothing while the list is absent, or for another key.
    void sortingRadioWithKey(std::string_view key);

    /// A JSON object, indented by two blanks, with one member per address whose value is the name of the last station
    /// with that address. Absent when there is no list or a name or address is not valid UTF-8.
    [[nodiscard]] Text convertRadioListToJSON() const;
};

} // namespace sonavel
