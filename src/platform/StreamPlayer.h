// The player of one stream.
//
// The life of a player:
//   1. `playerWithPlayerItem` makes it, silent and not connected to anything yet, at full volume, not muted;
//   2. `setVolume` and `setMuted` say how it will sound;
//   3. `play` connects and starts the sound as soon as there is any;
//   4. `pause` pauses the sound, `play` resumes it, any number of times; volume and muting apply at any moment;
//   5. destroying it ends its sound at once. Then, or while it lives, another one may be made.
// Whatever the stream does meanwhile (breaks, ends, never answers) is the player's own business: it goes on trying,
// reports it and posts the two notifications below with itself as the sender.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"

#include <chrono>
#include <functional>
#include <memory>

namespace sonavel {

/// What a player plays: the address of a stream, and what to call it where sounds are listed.
struct PlayerItem {
    Text address;
    Text name;
};

/// Why a stream does not play.
enum class PlaybackFailure {
    Unknown,
    NoSuchHost,
    Refused,
    Unreachable,
    TimedOut,
    Certificate,
    NotFound,
    NotAllowed,
    Rejected,
    ServerError,
    NotAStream,
    NotUsable,
    Ended,
    Silent,
    NoSoundOutput,
    EngineFailed,
};

/// The status of the stream that plays or is to play.
struct StreamReport {
    enum class State {
        /// There is no player.
        Nothing,
        Connecting,
        Buffering,
        Playing,
        Paused,
        /// The last attempt failed; the next one is made in `reconnectIn`, or under way.
        Reconnecting,
    };

    State state = State::Nothing;
    /// The stream's title; absent when it has none.
    Text title;
    /// Why the last attempt failed; meaningful with `Reconnecting`.
    PlaybackFailure failure = PlaybackFailure::Unknown;
    /// How long until the next attempt, in whole seconds; 0 while it is under way. Meaningful with `Reconnecting`.
    std::chrono::seconds reconnectIn{0};

    friend bool operator==(const StreamReport&, const StreamReport&) = default;
};

class StreamPlayer : private NonCopyable {
public:
    virtual ~StreamPlayer() = default;

    /// Starts, or continues, the sound. Returns at once.
    virtual void play() = 0;
    /// Pauses the sound; a later `play` continues the same stream.
    virtual void pause() = 0;
    /// 0.0 (silent) to 1.0 (full); heard at once.
    virtual void setVolume(float volume) = 0;
    /// Silences the sound without changing the volume; heard at once.
    virtual void setMuted(bool muted) = 0;
};

class StreamPlayers : private NonCopyable {
public:
    using Observer = std::function<void(const StreamReport&)>;

    virtual ~StreamPlayers() = default;

    /// Calls `observer` at every change of the stream's status, about once a second while a broken one waits.
    virtual void setObserver(Observer observer) = 0;

    /// A new player bound to `item`, which is not absent. Never fails: a stream that cannot be played stays silent. The
    /// players must be gone before this object is.
    [[nodiscard]] virtual std::unique_ptr<StreamPlayer> playerWithPlayerItem(
        std::shared_ptr<const PlayerItem> item) = 0;
};

/// Posted by a player when its stream runs dry, and when it meets an error.
inline constexpr const char* playbackStalledNotification = "AVPlayerItemPlaybackStalledNotification";
inline constexpr const char* newErrorLogEntryNotification = "AVPlayerItemNewErrorLogEntryNotification";

} // namespace sonavel
