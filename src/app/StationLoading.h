// The loading of the station list at the start.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"

namespace sonavel {

class ListWriter;
class StationDatabase;
class StationList;
class StationRefresh;

class StationLoading : private NonCopyable {
public:
    StationLoading(const StationList& stationList, ListWriter& listWriter, StationDatabase& stationDatabase,
        StationRefresh& stationRefresh)
        : stationList_(stationList)
        , listWriter_(listWriter)
        , stationDatabase_(stationDatabase)
        , stationRefresh_(stationRefresh)
    {
    }

    /// Makes the list, from the legacy plain file where there is one, which then moves into the database, else from
    /// the database; sorts it; and refreshes it from the server when it is empty, and then when a refresh is due.
    void initRadioList();

private:
    [[nodiscard]] Text legacyListText();

    const StationList& stationList_;
    ListWriter& listWriter_;
    StationDatabase& stationDatabase_;
    StationRefresh& stationRefresh_;
};

} // namespace sonavel
