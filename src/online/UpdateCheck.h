// The check for a newer version, as the program makes it at the start and on demand.
#pragma once

#include "base/NonCopyable.h"
#include "online/AppUpdater.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace sonavel {

class Clock;
class Preferences;
class StationRefresh;
struct ServerDates;
struct UpdateNoticeControls;

/// Main thread. Borrows everything it is given but the updater's ports.
class UpdateCheck : private NonCopyable {
public:
    UpdateCheck(UpdaterPorts ports, const Clock& clock, Preferences& preferences, ServerDates& serverDates,
        StationRefresh& stationRefresh, UpdateNoticeControls& notice)
        : ports_(std::move(ports))
        , clock_(clock)
        , preferences_(preferences)
        , serverDates_(serverDates)
        , stationRefresh_(stationRefresh)
        , notice_(notice)
    {
    }

    /// The checker of the last check; absent before the first. Its window goes when the next check replaces it.
    std::shared_ptr<AppUpdater> updaterApp;
    Versions versions;

    /// Whether the start is to make a check: none was made yet, or the last one on the day before. 23 hours 30 minutes
    /// before now decide which day that is.
    [[nodiscard]] bool isDueAtStart() const;

    /// Stores the moment of the check, asks the server, takes over its dates, shows what was found, and refreshes the
    /// station list when the server's is newer. Blocks while it asks.
    void checkUpdate();

    /// Called with every new checker, to wire its controls.
    void setObserver(std::function<void(const std::shared_ptr<AppUpdater>&)> observer)
    {
        observer_ = std::move(observer);
    }

private:
    void showNotification();

    const UpdaterPorts ports_;
    const Clock& clock_;
    Preferences& preferences_;
    ServerDates& serverDates_;
    StationRefresh& stationRefresh_;
    UpdateNoticeControls& notice_;
    std::function<void(const std::shared_ptr<AppUpdater>&)> observer_;
};

/// Whether `previousDay` falls on the same calendar day of the user as the moment that lies `dayOfDifference` times
/// 84,600 seconds (23 hours 30 minutes) before `actualDay`, or before now when that is absent. The product is a signed
/// 32-bit number and wraps around.
[[nodiscard]] bool dateComparisonWithPreviousDays(
    const Clock& clock, Moment previousDay, std::optional<Moment> actualDay, std::int32_t dayOfDifference);

} // namespace sonavel
