// The line protocol between the player and its engine.
//
// Both sides write lines of UTF-8 text, ended by a line feed. A line is a word and its arguments, joined by blanks; the
// last argument of some runs to the end of the line. In texts, control characters and "%" are escaped as %XX, and
// blanks where another argument follows. A line that is not one of these, or is too long, is ignored: neither side
// trusts the other.
//
//   player to engine                       engine to player
//     load ID ADDRESS NAME                   state ID STATE
//     pause, resume, stop                    failed ID REASON
//     volume 0.7                             title ID TEXT
//     muted yes|no
//
// ID is the player's number of a load; an event carries the number of the load that it is about.
#pragma once

#include "base/Text.h"
#include "platform/StreamPlayer.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace sonavel {

enum class StreamState {
    Connecting,
    /// The server has answered; what it sends is not recognised yet.
    Answered,
    /// It is a stream, of which no sound has been heard yet.
    Recognised,
    Buffering,
    Playing,
};

/// Plays the stream in the place of the present one, not paused.
struct LoadCommand {
    std::uint64_t load = 0;
    Text address;
    /// What sound servers call it.
    Text name;

    friend bool operator==(const LoadCommand&, const LoadCommand&) = default;
};

enum class BareCommand { Pause, Resume, Stop };

struct VolumeCommand {
    /// 0.0 to 1.0.
    float volume = 1.0F;

    friend bool operator==(const VolumeCommand&, const VolumeCommand&) = default;
};

struct MutedCommand {
    bool isMuted = false;

    friend bool operator==(const MutedCommand&, const MutedCommand&) = default;
};

using EngineCommand = std::variant<LoadCommand, BareCommand, VolumeCommand, MutedCommand>;

/// The first one of a load says that the engine has let go of the former load and begun with this one.
struct StateEvent {
    std::uint64_t load = 0;
    StreamState state = StreamState::Connecting;

    friend bool operator==(const StateEvent&, const StateEvent&) = default;
};

/// The load has come to its end; nothing of it follows.
struct FailedEvent {
    std::uint64_t load = 0;
    PlaybackFailure failure = PlaybackFailure::Unknown;

    friend bool operator==(const FailedEvent&, const FailedEvent&) = default;
};

struct TitleEvent {
    std::uint64_t load = 0;
    /// Empty when the stream has no title (any more).
    Text title;

    friend bool operator==(const TitleEvent&, const TitleEvent&) = default;
};

using EngineEvent = std::variant<StateEvent, FailedEvent, TitleEvent>;

/// The line, its line feed included.
[[nodiscard]] std::string lineFromCommand(const EngineCommand& command);
[[nodiscard]] std::string lineFromEvent(const EngineEvent& event);

/// Reads a line without its line feed; nothing when it is not one.
[[nodiscard]] std::optional<EngineCommand> commandFromLine(std::string_view line);
[[nodiscard]] std::optional<EngineEvent> eventFromLine(std::string_view line);

} // namespace sonavel
