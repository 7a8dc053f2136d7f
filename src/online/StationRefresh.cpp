#include "online/StationRefresh.h"

#include "model/StationList.h"
#include "model/StationListText.h"
#include "online/ServerDates.h"
#include "online/StationMerge.h"
#include "online/WebRequests.h"
#include "platform/Clock.h"
#include "platform/HttpClient.h"
#include "prefs/Preferences.h"
#include "storage/ListWriter.h"
#include "storage/StationListCodec.h"

#include <string_view>
#include <utility>

namespace sonavel {

namespace {

constexpr std::string_view listResource = "app_data_files/testget.php?file=20161001000000_lr.rdb";

} // namespace

bool StationRefresh::isDue() const
{
    const auto& lastRefresh = preferences_.PREF_DATE_UPDATE_LAST_DATACHECK;
    const auto& lastChange = serverDates_.DATE_UPDATED_DATA;
    return lastChange && (!lastRefresh || *lastRefresh < *lastChange);
}

void StationRefresh::chekNewRadioOnLine()
{
    if (stationList_.listRadio() == nullptr)
        return;
    preferences_.PREF_DATE_UPDATE_LAST_DATACHECK = clock_.now();
    preferences_.updatePreference();

    const StationRecords downloaded = recordsFromListText(downloadedListText());
    StationRecords merged = *stationList_.listRadio();
    if (!mergeStations(merged, downloaded))
        return;
    sortRecords(merged, radioKey);
    listWriter_.perform(ListChange::replaced(*stationList_.listRadio(), merged), ListOperation::Refreshed);
}

/// Absent when there was no response, or not one that can be decrypted.
Text StationRefresh::downloadedListText() const
{
    HttpRequest request;
    request.address = percentEscaped(dataServer_.string().append(listResource));
    auto content = httpClient_.sendSynchronousRequest(request);
    return content ? decodeStationList(std::move(*content)) : Text();
}

} // namespace sonavel
