#include "app/StationLoading.h"

#include "model/StationList.h"
#include "model/StationListText.h"
#include "online/StationRefresh.h"
#include "storage/StationDatabase.h"

namespace sonavel {

StationLoading::StationLoading(
    StationList& stationList, StationDatabase& stationDatabase, StationRefresh& stationRefresh)
    : stationList_(stationList)
    , stationDatabase_(stationDatabase)
    , stationRefresh_(stationRefresh)
{
}

void StationLoading::initRadioList()
{
    stationList_.listRadio = std::make_shared<StationRecords>();
    const Text legacyText = legacyListText();
    const bool isMigrating = !legacyText.isAbsent();
    *stationList_.listRadio =
        recordsFromListText(isMigrating ? legacyText : stationDatabase_.fileRadioDBreadCypted(true));
    stationList_.sortingRadioWithKey("radio");
    if (isMigrating) {
        stationDatabase_.removeLegacyFileAfterWrite();
        stationDatabase_.fileRadioDBupdate();
    }

    if (stationList_.numberOfStations() == 0)
        stationRefresh_.chekNewRadioOnLine();
    if (stationRefresh_.isDue())
        stationRefresh_.chekNewRadioOnLine();
}

/// Absent without a legacy file, and when it cannot be read; then it is out of the way.
Text StationLoading::legacyListText()
{
    if (!stationDatabase_.fileRadioDBVerify(true))
        return {};
    Text text = stationDatabase_.fileRadioDBreadCypted(false);
    if (text.isAbsent())
        stationDatabase_.setAsideLegacyFile();
    return text;
}

} // namespace sonavel
