#include "playback/StationSelection.h"

#include "model/StationList.h"
#include "platform/LocalizedStrings.h"
#include "playback/Player.h"
#include "prefs/PreferenceFields.h"
#include "ui/Controls.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace sonavel {

StationSelection::StationSelection(const StationList& stationList, const PreferenceFields& preferences, Player& player,
    const LocalizedStrings& localizedStrings, MainControls& controls, PopUpButton& popupDefaultButtonListRadio)
    : stationList_(stationList)
    , preferences_(preferences)
    , player_(player)
    , localizedStrings_(localizedStrings)
    , controls_(controls)
    , popupDefaultButtonListRadio_(popupDefaultButtonListRadio)
{
    for (PopUpButton* popUp : {&controls.popupbuttonRadioList, &popupDefaultButtonListRadio})
        popUp->setPresentItems([&stationList] { return stationList.numberOfStations() + 1; });
}

void StationSelection::updatePopupListRadioWithListStation()
{
    const bool hasStations = stationList_.numberOfStations() > 0;
    auto titles = std::make_shared<std::vector<Text>>();
    titles->reserve(stationList_.numberOfStations() + 1);
    titles->push_back(localizedStrings_.localizedStringForKey(hasStations ? selectRadioKey : selectRadioNullKey));
    if (hasStations)
        for (const auto& station : *stationList_.listRadio())
            titles->push_back(station->radio());

    controls_.popupbuttonRadioList.setItems(titles);
    popupDefaultButtonListRadio_.setItems(titles);
    controls_.popupbuttonRadioList.setEnabled(hasStations);
    popupDefaultButtonListRadio_.setEnabled(hasStations);
    controls_.sliderVolume.setEnabled(hasStations);
    controls_.buttonMute.setEnabled(hasStations);
}

void StationSelection::changeStation(bool previous)
{
    controls_.buttonPlayPause.setEnabled(false);
    controls_.buttonPlayPause.setImage("play.png");
    player_.isPlay = false;
    player_.isStop = true;
    choose(0);

    const int item = selectedItem();
    const int last = std::max(controls_.popupbuttonRadioList.numberOfItems() - 1, 0);
    const int first = std::min(1, last);
    if (previous)
        controls_.popupbuttonRadioList.selectItemAtIndex(item > first ? item - 1 : last);
    else
        controls_.popupbuttonRadioList.selectItemAtIndex(item < last ? item + 1 : first);
    popupRadioList();
}

void StationSelection::popupRadioList()
{
    const int item = selectedItem();
    choose(item);
    controls_.buttonPlayPause.setEnabled(item > 0);
    controls_.buttonPlayPause.setImage("play.png");
    if (item > 0 && preferences_.PREF_IS_AUTOPLAY)
        player_.play();
    else
        player_.stop();
}

/// Makes the station that the item stands for the player's; none for the placeholder.
void StationSelection::choose(int item)
{
    const auto station = item > 0 ? stationList_.listRadio()->at(static_cast<std::size_t>(item - 1)) : nullptr;
    player_.playRadioLink = station ? station->link() : Text();
    player_.playRadioName = station ? station->radio() : Text();
}

/// The selected item, 0 when it stands for no station.
int StationSelection::selectedItem() const
{
    return std::max(controls_.popupbuttonRadioList.indexOfSelectedItem(), 0);
}

void StationSelection::validateControls()
{
    if (controls_.popupbuttonRadioList.indexOfSelectedItem() < 0 && player_.isStop)
        controls_.buttonPlayPause.setEnabled(false);
    if (stationList_.numberOfStations() == 0)
        popupDefaultButtonListRadio_.setEnabled(false);
}

void StationSelection::selectDefaultStation()
{
    const Text& name = preferences_.PREF_DEFAULT_STATION;
    if (name == selectRadioKey || stationList_.numberOfStations() == 0)
        return;
    const StationRecords& stations = *stationList_.listRadio();
    const auto found =
        std::find_if(stations.begin(), stations.end(), [&](const auto& station) { return station->radio() == name; });
    if (found == stations.end())
        return;
    const int item = static_cast<int>(found - stations.begin()) + 1;
    popupDefaultButtonListRadio_.selectItemAtIndex(item);
    controls_.popupbuttonRadioList.selectItemAtIndex(item);
    choose(item);
    controls_.buttonPlayPause.setEnabled(true);
    if (preferences_.PREF_IS_AUTOPLAY_OPEN_APP)
        player_.play();
}

} // namespace sonavel
