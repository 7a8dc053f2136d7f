#include "app/MediaControls.h"

#include "app/CountedAlerts.h"
#include "model/StationList.h"
#include "model/StreamAddress.h"
#include "platform/Clock.h"
#include "playback/StationSelection.h"
#include "playback/StreamStatus.h"
#include "ui/Controls.h"

#include <utility>

namespace sonavel {

namespace {

constexpr std::int64_t maxWait = 2; // seconds

} // namespace

/// When a command was given.
struct MediaControls::Command {
    Moment latest; ///< at which it is done
    unsigned answers;
    unsigned interruptions;
};

const MediaState& MediaControls::state()
{
    using Status = MediaState::Status;
    const Player& player = player_;
    if (player.isStop && !player.isPlay) {
        state_ = {};
        item_.reset();
    } else if (item_ != player.playerItem) {
        item_ = player.playerItem;
        state_.stream = ++streams_;
        state_.address = withoutUserInformation(item_->address);
        state_.station = item_->name;
    }
    state_.title = streamStatus_.report().title;
    if (item_)
        state_.status = player.isPlay ? Status::Playing : Status::Paused;
    state_.volume = controls_.sliderVolume.state().value;
    state_.canPlay = controls_.buttonPlayPause.state().isEnabled;
    state_.canStep = stationList_.numberOfStations() > 0;
    return state_;
}

void MediaControls::play()
{
    const auto command = std::make_shared<const Command>(newCommand());
    play_ = command;
    actions_.perform(&controls_.buttonPlayPause, ListUse::None, [this, command] {
        if (isStillMeant(*command) && !player_.isPlay && controls_.buttonPlayPause.state().isEnabled)
            player_.buttonPlayPause();
    });
}

void MediaControls::pause()
{
    ++interruptions_;
    actions_.performAtOnce(&controls_.buttonPlayPause, unlessLate([this] {
        if (player_.isPlay && controls_.buttonPlayPause.state().isEnabled)
            player_.buttonPlayPause();
    }));
}

void MediaControls::playPause()
{
    const auto waiting = play_.lock();
    if (player_.isPlay || (waiting && isStillMeant(*waiting)))
        pause();
    else
        play();
}

void MediaControls::stop()
{
    ++interruptions_;
    actions_.performAtOnce(&controls_.buttonStop, unlessLate([this] {
        if (controls_.buttonStop.state().isEnabled)
            player_.buttonStop();
    }));
}

void MediaControls::step(bool isPrevious)
{
    actions_.perform(&controls_.popupbuttonRadioList, ListUse::None, [this, isPrevious, command = newCommand()] {
        if (isStillMeant(command) && stationList_.numberOfStations() > 0)
            stationSelection_.changeStation(isPrevious);
    });
}

void MediaControls::setVolume(double volume)
{
    actions_.perform(&controls_.sliderVolume, ListUse::None, unlessLate([this, volume] {
        if (!controls_.sliderVolume.state().isEnabled)
            return;
        controls_.sliderVolume.setDoubleValue(volume);
        player_.sliderVolume();
    }));
}

void MediaControls::raise()
{
    actions_.perform(&controls_.winSonavel, ListUse::None, [this] { controls_.winSonavel.makeKeyAndOrderFront(); });
}

void MediaControls::quit()
{
    actions_.perform(this, ListUse::AsShown, unlessLate(quitApp_));
}

MediaControls::Command MediaControls::newCommand() const
{
    return {clock_.now().advancedBySeconds(maxWait), alerts_.answers(), interruptions_};
}

/// After that, nobody who pressed a media key in vain expects its effect.
bool MediaControls::isLate(const Command& command) const
{
    return clock_.now() > command.latest || alerts_.answers() != command.answers;
}

/// A later Pause or Stop, which does not wait, is not to be undone.
bool MediaControls::isStillMeant(const Command& command) const
{
    return !isLate(command) && interruptions_ == command.interruptions;
}

Actions::Operation MediaControls::unlessLate(Actions::Operation operation) const
{
    return [this, command = newCommand(), operation = std::move(operation)] {
        if (!isLate(command))
            operation();
    };
}

} // namespace sonavel
