// A change of a list of stations, as a value.
#pragma once

#include "base/IndexSet.h"
#include "model/KVStationWebRadio.h"

#include <cstddef>
#include <vector>

namespace sonavel {

/// Records that give way to others at some positions of a list. No record is altered, so the lists before and after the
/// change share all records but those.
class ListChange {
public:
    /// Changes nothing.
    ListChange() = default;

    /// Puts records behind those of `list`.
    [[nodiscard]] static ListChange added(const StationRecords& list, StationRecords records);
    /// Puts `record` in the place of the one at `position`, which `list` has to have.
    [[nodiscard]] static ListChange changed(const StationRecords& list, std::size_t position, StationRecord record);
    /// Removes the records at these positions, all of which `list` has to have.
    [[nodiscard]] static ListChange removed(const StationRecords& list, const IndexSet& positions);
    /// Makes `records` of `list`. What both begin and end with, and what lies between the former and the new position
    /// of a single record, stays out of the change.
    [[nodiscard]] static ListChange replaced(const StationRecords& list, const StationRecords& records);

    /// What makes the former list of the changed one.
    [[nodiscard]] ListChange inverse() const;

    /// `list` has to be equal to the one that the change was made for.
    void applyTo(StationRecords& list) const;

private:
    struct Splice {
        std::size_t position; ///< in the list before the change
        StationRecords removed;
        StationRecords inserted;
    };

    std::vector<Splice> splices_; ///< in rising order, without overlap
};

} // namespace sonavel
