// The player as the desktop's media keys and sound panels see it.
#pragma once

#include "app/Actions.h"
#include "base/NonCopyable.h"
#include "base/Text.h"
#include "playback/Player.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace sonavel {

class Clock;
class CountedAlerts;
class StationList;
class StationSelection;
class StreamStatus;
struct MainControls;

struct MediaState {
    enum class Status { Stopped, Paused, Playing };

    Status status = Status::Stopped;
    /// Counts the streams that were played; 0 before the first and while there is none.
    std::uint64_t stream = 0;
    /// The name of the station that is played.
    Text station;
    /// What the stream says it plays; absent when it says nothing.
    Text title;
    /// Without user and password.
    Text address;
    /// 0.0 (silent) to 1.0 (full).
    double volume = 0.0;
    bool canPlay = false;
    bool canStep = false;

    friend bool operator==(const MediaState&, const MediaState&) = default;
};

/// Every operation does what the control of the main window does, when that is enabled. While an action shows a
/// question or waits for a server, Pause and Stop are done at once, unless it has the list for itself. What has to wait
/// is done after that action, but not more than 2 s late, nor when the user answered a question meanwhile; Play, Next
/// and Previous not after a later Pause or Stop either. `raise` is always done.
class MediaControls : private NonCopyable {
public:
    MediaControls(MainControls& controls, Player& player, const StreamStatus& streamStatus,
        StationSelection& stationSelection, const StationList& stationList, Actions& actions,
        const CountedAlerts& alerts, const Clock& clock, Actions::Operation quitApp)
        : controls_(controls)
        , player_(player)
        , streamStatus_(streamStatus)
        , stationSelection_(stationSelection)
        , stationList_(stationList)
        , actions_(actions)
        , alerts_(alerts)
        , clock_(clock)
        , quitApp_(std::move(quitApp))
    {
    }

    /// To be called after every action: a station keeps the name that it had when it began to play.
    [[nodiscard]] const MediaState& state();

    /// Plays or goes on; nothing when it plays.
    void play();
    /// Nothing unless it plays.
    void pause();
    /// Pauses when it plays; plays otherwise, unless that waits already: two presses cancel each other.
    void playPause();
    void stop();
    void next() { step(false); }
    void previous() { step(true); }
    /// Beyond the slider's ends counts as the nearer one; what is no number is ignored.
    void setVolume(double volume);

    /// Shows the main window.
    void raise();
    /// As Quit does, with its question.
    void quit();

private:
    struct Command;

    void step(bool isPrevious);
    [[nodiscard]] Command newCommand() const;
    [[nodiscard]] bool isLate(const Command& command) const;
    [[nodiscard]] bool isStillMeant(const Command& command) const;
    [[nodiscard]] Actions::Operation unlessLate(Actions::Operation operation) const;

    MainControls& controls_;
    Player& player_;
    const StreamStatus& streamStatus_;
    StationSelection& stationSelection_;
    const StationList& stationList_;
    Actions& actions_;
    const CountedAlerts& alerts_;
    const Clock& clock_;
    const Actions::Operation quitApp_;
    MediaState state_;
    std::uint64_t streams_ = 0;
    std::shared_ptr<const PlayerItem> item_;
    unsigned interruptions_ = 0; ///< how often Pause or Stop was given
    std::weak_ptr<const Command> play_; ///< while it waits
};

} // namespace sonavel
