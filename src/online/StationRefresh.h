// The refresh of the station list from the data server.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"

#include <utility>

namespace sonavel {

class Clock;
class HttpClient;
class ListWriter;
class Preferences;
class StationList;
struct ServerDates;

/// Main thread. Borrows everything it is given but the address.
class StationRefresh : private NonCopyable {
public:
    /// `dataServer` is the data server's base address and ends in "/".
    StationRefresh(HttpClient& httpClient, const Clock& clock, Text dataServer, const ServerDates& serverDates,
        Preferences& preferences, const StationList& stationList, ListWriter& listWriter)
        : httpClient_(httpClient)
        , clock_(clock)
        , dataServer_(std::move(dataServer))
        , serverDates_(serverDates)
        , preferences_(preferences)
        , stationList_(stationList)
        , listWriter_(listWriter)
    {
    }

    /// Whether the server's list is newer than the last refresh.
    [[nodiscard]] bool isDue() const;

    /// Notes the moment of the attempt in the preferences, downloads the server's list and merges it into the present
    /// one, which is sorted and written when that changed it. Without a usable response nothing else changes.
    ///
    /// Does nothing at all while the list is absent: written, what was downloaded would take the place of stations
    /// that have only not been read yet.
    void chekNewRadioOnLine();

private:
    [[nodiscard]] Text downloadedListText() const;

    HttpClient& httpClient_;
    const Clock& clock_;
    const Text dataServer_;
    const ServerDates& serverDates_;
    Preferences& preferences_;
    const StationList& stationList_;
    ListWriter& listWriter_;
};

} // namespace sonavel
