#include "app/MediaControls.h"

#include "app/WinSonavelController.h"
#include "platform/Clock.h"
#include "playback/StreamAddress.h"
#include "ui/Outlets.h"

#include <utility>

namespace sonavel {

using Controller = WinSonavelController;

namespace {

constexpr std::int64_t longestWait = 2; // seconds

} // namespace

MediaControls::MediaControls(WinSonavelController& controller, Outlets& outlets, Actions& actions, const Clock& clock)
    : controller_(controller)
    , outlets_(outlets)
    , actions_(actions)
    , clock_(clock)
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
        state_.address = withoutUserInformation(item_->address);
        state_.station = item_->name;
    }
    if (item_)
        state_.status = player.isPlay ? Status::Playing : Status::Paused;
    state_.volume = outlets_.sliderVolume.state().value;
    state_.canPlay = outlets_.buttonPlayPause.state().isEnabled;
    state_.canStep = controller_.stationList.numberOfStations() > 0;
    return state_;
}

void MediaControls::play()
{
    perform(&outlets_.buttonPlayPause, [this](Controller& c) {
        if (!c.player.isPlay && outlets_.buttonPlayPause.state().isEnabled)
            c.player.buttonPlayPause();
    });
}

void MediaControls::pause()
{
    actions_.performAtOnce(&outlets_.buttonPlayPause, unlessLate([this](Controller& c) {
        if (c.player.isPlay && outlets_.buttonPlayPause.state().isEnabled)
            c.player.buttonPlayPause();
    }));
}

void MediaControls::playPause()
{
    if (controller_.player.isPlay)
        pause();
    else
        play();
}

void MediaControls::stop()
{
    actions_.performAtOnce(&outlets_.buttonStop, unlessLate([this](Controller& c) {
        if (outlets_.buttonStop.state().isEnabled)
            c.player.buttonStop();
    }));
}

void MediaControls::next()
{
    step(false);
}

void MediaControls::previous()
{
    step(true);
}

void MediaControls::step(bool isPrevious)
{
    perform(&outlets_.popupbuttonRadioList, [isPrevious](Controller& c) {
        if (c.stationList.numberOfStations() > 0)
            c.stationSelection.changeStation(isPrevious);
    });
}

void MediaControls::setVolume(double volume)
{
    perform(&outlets_.sliderVolume, [this, volume](Controller& c) {
        if (!outlets_.sliderVolume.state().isEnabled)
            return;
        outlets_.sliderVolume.setDoubleValue(volume);
        c.player.sliderVolume();
    });
}

void MediaControls::raise()
{
    actions_.perform(
        &outlets_.winSonavel, ListUse::None, [this](Controller&) { outlets_.winSonavel.makeKeyAndOrderFront(); });
}

void MediaControls::quit()
{
    actions_.perform(this, ListUse::AsShown, unlessLate([](Controller& c) { c.quitApp(); }));
}

void MediaControls::perform(const void* source, Actions::Operation operation)
{
    actions_.perform(source, ListUse::None, unlessLate(std::move(operation)));
}

/// After that, nobody who pressed a media key in vain expects its effect.
Actions::Operation MediaControls::unlessLate(Actions::Operation operation) const
{
    return [this, latest = clock_.now().advancedBySeconds(longestWait), answers = controller_.alerts.answers(),
               operation = std::move(operation)](Controller& c) {
        if (clock_.now() <= latest && c.alerts.answers() == answers)
            operation(c);
    };
}

} // namespace sonavel
