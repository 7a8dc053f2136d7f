#include "playback/StationSelection.h"

#include "model/StationList.h"
#include "platform/LocalizedStrings.h"
#include "playback/Player.h"
#include "prefs/PlaceholderKeys.h"
#include "prefs/PreferenceFields.h"
#include "ui/Outlets.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace sonavel {

StationSelection::StationSelection(const StationList& stationList, const PreferenceFields& preferences, Player& player,
    const LocalizedStrings& localizedStrings, Outlets& outlets)
    : stationList_(stationList)
    , preferences_(preferences)
    , player_(player)
    , localizedStrings_(localizedStrings)
    , outlets_(outlets)
{
    for (PopUpButton* popUp : {&outlets.popupbuttonRadioList, &outlets.popupDefaultButtonListRadio})
        popUp->setPresentItems([&stationList] { return stationList.numberOfStations() + 1; });
}

void StationSelection::updatePopupListRadioWithListStation()
{
    const bool hasStations = stationList_.numberOfStations() > 0;
    auto titles = std::make_shared<std::vector<Text>>();
    titles->reserve(stationList_.numberOfStations() + 1);
    titles->push_back(localizedStrings_.localizedStringForKey(hasStations ? selectRadioKey : selectRadioNullKey));
    if (hasStations)
        for (const auto& station : *stationList_.listRadio)
            titles->push_back(station->radio());

    outlets_.popupbuttonRadioList.setItems(titles);
    outlets_.popupDefaultButtonListRadio.setItems(titles);
    outlets_.popupbuttonRadioList.setEnabled(hasStations);
    outlets_.popupDefaultButtonListRadio.setEnabled(hasStations);
    outlets_.sliderVolume.setEnabled(hasStations);
    outlets_.buttonMute.setEnabled(hasStations);
}

void StationSelection::changeStation(bool previous)
{
    outlets_.buttonPlayPause.setEnabled(false);
    outlets_.buttonPlayPause.setImage("play.png");
    player_.isPlay = false;
    player_.isStop = true;
    choose(0);

    const int item = selectedItem();
    const int last = std::max(outlets_.popupbuttonRadioList.numberOfItems() - 1, 0);
    const int first = std::min(1, last);
    if (previous)
        outlets_.popupbuttonRadioList.selectItemAtIndex(item > first ? item - 1 : last);
    else
        outlets_.popupbuttonRadioList.selectItemAtIndex(item < last ? item + 1 : first);
    popupRadioList();
}

void StationSelection::popupRadioList()
{
    const int item = selectedItem();
    choose(item);
    outlets_.buttonPlayPause.setEnabled(item > 0);
    outlets_.buttonPlayPause.setImage("play.png");
    if (item > 0 && preferences_.PREF_IS_AUTOPLAY)
        player_.play();
    else
        player_.stop();
}

/// Makes the station that the item stands for the player's; none for the placeholder.
void StationSelection::choose(int item)
{
    const auto station = item > 0 ? stationList_.listRadio->at(static_cast<std::size_t>(item - 1)) : nullptr;
    player_.playRadioLink = station ? station->link() : Text();
    player_.playRadioName = station ? station->radio() : Text();
}

/// The selected item, 0 when it stands for no station.
int StationSelection::selectedItem() const
{
    return std::max(outlets_.popupbuttonRadioList.indexOfSelectedItem(), 0);
}

void StationSelection::validateControls()
{
    if (outlets_.popupbuttonRadioList.indexOfSelectedItem() < 0 && player_.isStop)
        outlets_.buttonPlayPause.setEnabled(false);
    if (stationList_.numberOfStations() == 0)
        outlets_.popupDefaultButtonListRadio.setEnabled(false);
}

void StationSelection::selectDefaultStation()
{
    const Text& name = preferences_.PREF_DEFAULT_STATION;
    if (name == selectRadioKey || stationList_.numberOfStations() == 0)
        return;
    const StationRecords& stations = *stationList_.listRadio;
    const auto found =
        std::find_if(stations.begin(), stations.end(), [&](const auto& station) { return station->radio() == name; });
    if (found == stations.end())
        return;
    const int item = static_cast<int>(found - stations.begin()) + 1;
    outlets_.popupDefaultButtonListRadio.selectItemAtIndex(item);
    outlets_.popupbuttonRadioList.selectItemAtIndex(item);
    choose(item);
    outlets_.buttonPlayPause.setEnabled(true);
    if (preferences_.PREF_IS_AUTOPLAY_OPEN_APP)
        player_.play();
}

} // namespace sonavel
