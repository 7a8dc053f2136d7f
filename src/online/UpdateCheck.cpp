#include "online/UpdateCheck.h"

#include "online/ServerDates.h"
#include "online/StationRefresh.h"
#include "platform/Clock.h"
#include "platform/LocalizedStrings.h"
#include "prefs/Preferences.h"
#include "ui/Controls.h"

#include <utility>

namespace sonavel {

namespace {

constexpr std::uint32_t secondsPerDayOfDifference = 84'600;

} // namespace

bool UpdateCheck::isDueAtStart() const
{
    const auto& lastCheck = preferences_.PREF_DATE_UPDATE_LAST_APPCHECK;
    return !lastCheck || dateComparisonWithPreviousDays(clock_, *lastCheck, clock_.now(), 1);
}

void UpdateCheck::checkUpdate()
{
    preferences_.PREF_DATE_UPDATE_LAST_APPCHECK = clock_.now();
    preferences_.updatePreference();
    updaterApp = AppUpdater::create(ports_, versions);
    if (observer_)
        observer_(updaterApp);
    serverDates_.DATE_UPDATED_APP = updaterApp->updateApp;
    serverDates_.DATE_UPDATED_DATA = updaterApp->updateData;
    if (!updaterApp->checkUpdate())
        showNotification();
    if (stationRefresh_.isDue())
        stationRefresh_.chekNewRadioOnLine();
}

/// Seen after a check on demand alone: at the start the window is not connected yet.
void UpdateCheck::showNotification()
{
    const Text notice = ports_.localizedStrings.localizedStringForKey(
        updaterApp->hasUsableResponse() ? "UPDATE_NONE" : "UPDATE_NO_ANSWER");
    notice_.labelUpdateNotification.setStringValue(filledIn(notice, updaterApp->retrunVersionApp()));
    notice_.winUpdateNotification.makeKeyAndOrderFront();
}

bool dateComparisonWithPreviousDays(
    const Clock& clock, Moment previousDay, std::optional<Moment> actualDay, std::int32_t dayOfDifference)
{
    // Unsigned, because a signed product may not overflow.
    const auto shift =
        static_cast<std::int32_t>(static_cast<std::uint32_t>(dayOfDifference) * secondsPerDayOfDifference);
    const Moment shifted = actualDay.value_or(clock.now()).advancedBySeconds(-static_cast<std::int64_t>(shift));
    return clock.calendarDay(previousDay) == clock.calendarDay(shifted);
}

} // namespace sonavel
