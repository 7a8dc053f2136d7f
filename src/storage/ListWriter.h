// The one writer of the station list.
#pragma once

#include "model/ListChange.h"

#include <cstdint>
#include <functional>
#include <utility>

namespace sonavel {

class StationDatabase;
class StationList;

/// What happens to the list.
enum class ListOperation : std::uint8_t {
    SheetConfirmed,
    CellEdited,
    StationsRemoved,
    RemovalDeclined,
    ImportBegun, ///< into an empty list, or one that was erased for it
    ImportShown, ///< before its last line, and before a question
    ImportEnded,
    Refreshed,
    RefreshShown, ///< after a check on demand that refreshed the list
    LegacyFileRead,
};

/// What follows an operation.
enum class ListStep : std::uint8_t { Save, RefillPopUps, ReloadTable, SelectLastRow, CloseSheet, UpdateTitle };

/// Main thread. Borrows list and database.
class ListWriter {
public:
    ListWriter(StationList& stationList, StationDatabase& stationDatabase)
        : stationList_(stationList)
        , stationDatabase_(stationDatabase)
    {
    }

    /// Calls `observer` for each step but saving.
    void setObserver(std::function<void(ListStep)> observer) { observer_ = std::move(observer); }

    /// Makes the list, sorted by name.
    void load(StationRecords records);

    /// Changes the list, and nothing else.
    void apply(const ListChange& change);

    /// Takes the steps that follow the operation.
    void follow(ListOperation operation);

    /// Changes the list and takes the steps that follow the operation.
    void perform(const ListChange& change, ListOperation operation);

    /// How often the list has been changed.
    [[nodiscard]] unsigned changes() const { return changes_; }

private:
    StationList& stationList_;
    StationDatabase& stationDatabase_;
    std::function<void(ListStep)> observer_;
    unsigned changes_ = 0;
};

} // namespace sonavel
