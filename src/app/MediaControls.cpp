#include "app/MediaControls.h"

#include "app/Actions.h"
#include "app/WinSonavelController.h"
#include "playback/StreamAddress.h"
#include "ui/Outlets.h"

#include <algorithm>

namespace sonavel {

using Controller = WinSonavelController;

MediaControls::MediaControls(WinSonavelController& controller, Outlets& outlets, Actions& actions)
    : controller_(controller)
    , outlets_(outlets)
    , actions_(actions)
{
}

const MediaState& MediaControls::state()
{
    using Status = MediaState::Status;
    const Player& player = controller_.player;
    if (player.isStop && !player.isPlay) {
        state_ = {};
        item_.reset();
    } else if (item_ != player.playerItem) {
        item_ = player.playerItem;
        state_.stream = ++streams_;
        state_.address = item_->address;
        state_.station = stationName(item_->address);
    }
    if (item_)
        state_.status = player.isPlay ? Status::Playing : Status::Paused;
    state_.volume = outlets_.sliderVolume.state().value;
    state_.canPlay = outlets_.buttonPlayPause.state().isEnabled;
    state_.canStep = controller_.stationList.numberOfStations() > 0;
    return state_;
}

Text MediaControls::stationName(const Text& address) const
{
    const StationRecords& stations = *controller_.stationList.listRadio;
    const auto found = std::find_if(stations.begin(), stations.end(),
        [&](const auto& station) { return usableStreamAddress(station->link()) == address; });
    return found == stations.end() ? hostOfStreamAddress(address) : (*found)->radio();
}

void MediaControls::play()
{
    actions_.perform(&outlets_.buttonPlayPause.action, [this](Controller& c) {
        if (!c.player.isPlay && outlets_.buttonPlayPause.state().isEnabled)
            c.player.buttonPlayPause();
    });
}

void MediaControls::pause()
{
    actions_.perform(&outlets_.buttonPlayPause.action, [this](Controller& c) {
        if (c.player.isPlay && outlets_.buttonPlayPause.state().isEnabled)
            c.player.buttonPlayPause();
    });
}

void MediaControls::playPause()
{
    outlets_.buttonPlayPause.pressedByUser();
}

void MediaControls::stop()
{
    outlets_.buttonStop.pressedByUser();
}

void MediaControls::next()
{
    perform(Step::Next);
}

void MediaControls::previous()
{
    perform(Step::Previous);
}

void MediaControls::perform(Step step)
{
    actions_.perform(&outlets_.popupbuttonRadioList.action, [step](Controller& c) {
        if (c.stationList.numberOfStations() > 0)
            c.stationSelection.changeStation(step == Step::Previous);
    });
}

void MediaControls::setVolume(double volume)
{
    actions_.perform(&outlets_.sliderVolume.action, [this, volume](Controller& c) {
        if (!outlets_.sliderVolume.state().isEnabled)
            return;
        outlets_.sliderVolume.setDoubleValue(volume);
        c.player.sliderVolume();
    });
}

void MediaControls::raise()
{
    actions_.perform(&outlets_.winSonavel, [this](Controller&) { outlets_.winSonavel.makeKeyAndOrderFront(); });
}

void MediaControls::quit() const
{
    outlets_.winSonavel.closeRequestedByUser();
}

} // namespace sonavel
