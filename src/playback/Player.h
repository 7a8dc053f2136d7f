// The player of the chosen station, and the controls that show its state.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"
#include "platform/StreamPlayer.h"

#include <memory>

namespace sonavel {

class MenuItem;
class NotificationCenter;
struct MainControls;

/// Three states: Stopped (`isStop`, no `mediaPlayer`), Playing (`isPlay`) and Paused (neither), in each of them muted
/// or not. What the stream itself does changes none of this: a stream that stalls or fails is still Playing.
class Player : private NonCopyable {
public:
    Player(StreamPlayers& streamPlayers, NotificationCenter& notificationCenter, MainControls& controls,
        MenuItem& menuMute)
        : streamPlayers_(streamPlayers)
        , notificationCenter_(notificationCenter)
        , controls_(controls)
        , menuMute_(menuMute)
    {
    }

    bool isPlay = false;
    bool isStop = true;
    bool isMute = false;
    /// The volume last read from `sliderVolume`, 0.0 to 1.0.
    float sliderValue = 0.0F;
    /// The address of the chosen station; absent when none is chosen.
    Text playRadioLink;
    /// Its name when it was chosen; absent when none is chosen.
    Text playRadioName;
    /// What the most recently made player plays; kept when that stops.
    std::shared_ptr<const PlayerItem> playerItem;
    std::unique_ptr<StreamPlayer> mediaPlayer;

    /// Plays `playRadioLink` with a new player, whatever the state; the former one falls silent. The stream is called
    /// `playRadioName`, or by its host where that is absent or empty. When the address cannot be played (see
    /// `usableStreamAddress`), stops instead.
    void play();
    /// The same steps as `play`, on the calling thread.
    void playIntoBackgroundProcess() { play(); }
    void pause();
    /// Goes on with the present player.
    void resume();
    /// Lets go of the player, which silences it.
    void stop();
    /// Plays when Stopped, resumes when Paused, pauses when Playing.
    void playPause();
    /// Applies `isMute` to the player, the Mute button and the slider; the volume stays.
    void mute();
    /// Gives the player the volume `sliderValue`.
    void applyVolume() const;

    // What the controls do.
    void buttonPlayPause() { playPause(); }
    void buttonStop() { stop(); }
    void buttonMute();
    void sliderVolume();

    /// From now on `playerError` hears of players that stall or fail: of the present one, or of all when there is none.
    void registerForNotifications();
    /// Takes no action: the player goes on trying by itself.
    void playerError() { }

private:
    void becomePlaying();

    StreamPlayers& streamPlayers_;
    NotificationCenter& notificationCenter_;
    MainControls& controls_;
    MenuItem& menuMute_;
};

} // namespace sonavel
