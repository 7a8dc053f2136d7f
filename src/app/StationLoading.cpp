#include "app/StationLoading.h"

#include "model/StationList.h"
#include "model/StationListText.h"
#include "online/StationRefresh.h"
#include "storage/ListWriter.h"
#include "storage/StationDatabase.h"

namespace sonavel {

void StationLoading::initRadioList()
{
    const Text legacyText = legacyListText();
    const bool isMigrating = !legacyText.isAbsent();
    listWriter_.load(recordsFromListText(isMigrating ? legacyText : stationDatabase_.fileRadioDBreadCypted(true)));
    if (isMigrating) {
        stationDatabase_.removeLegacyFileAfterWrite();
        listWriter_.follow(ListOperation::LegacyFileRead);
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
        stationDatabase_.quarantineLegacyFile();
    return text;
}

} // namespace sonavel
