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

/// When a command was given.
struct MediaControls::Command {
    Moment latest; ///< at which it is done
    unsigned answers;
    unsigned interruptions;
};

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
    const auto command = std::make_shared<const Command>(newCommand());
    play_ = command;
    actions_.perform(&outlets_.buttonPlayPause, ListUse::None, [this, command](Controller& c) {
        if (isStillMeant(*command) && !c.player.isPlay && outlets_.buttonPlayPause.state().isEnabled)
            c.player.buttonPlayPause();
    });
}

void MediaControls::pause()
{
    ++interruptions_;
    actions_.performAtOnce(&outlets_.buttonPlayPause, unlessLate([this](Controller& c) {
        if (c.player.isPlay && outlets_.buttonPlayPause.state().isEnabled)
            c.player.buttonPlayPause();
    }));
}

void MediaControls::playPause()
{
    const auto waiting = play_.lock();
    if (controller_.player.isPlay || (waiting && isStillMeant(*waiting)))
        pause();
    else
        play();
}

void MediaControls::stop()
{
    ++interruptions_;
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
    actions_.perform(
        &outlets_.popupbuttonRadioList, ListUse::None, [this, isPrevious, command = newCommand()](Controller& c) {
            if (isStillMeant(command) && c.stationList.numberOfStations() > 0)
                c.stationSelection.changeStation(isPrevious);
        });
}

void MediaControls::setVolume(double volume)
{
    actions_.perform(&outlets_.sliderVolume, ListUse::None, unlessLate([this, volume](Controller& c) {
        if (!outlets_.sliderVolume.state().isEnabled)
            return;
        outlets_.sliderVolume.setDoubleValue(volume);
        c.player.sliderVolume();
    }));
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

MediaControls::Command MediaControls::newCommand() const
{
    return {clock_.now().advancedBySeconds(longestWait), controller_.alerts.answers(), interruptions_};
}

/// After that, nobody who pressed a media key in vain expects its effect.
bool MediaControls::isLate(const Command& command) const
{
    return clock_.now() > command.latest || controller_.alerts.answers() != command.answers;
}

/// A later Pause or Stop, which does not wait, is not to be undone.
bool MediaControls::isStillMeant(const Command& command) const
{
    return !isLate(command) && interruptions_ == command.interruptions;
}

Actions::Operation MediaControls::unlessLate(Actions::Operation operation) const
{
    return [this, command = newCommand(), operation = std::move(operation)](Controller& c) {
        if (!isLate(command))
            operation(c);
    };
}

} // namespace sonavel
