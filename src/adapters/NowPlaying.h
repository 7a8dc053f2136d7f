// What becomes of the stream that the user asked for.
#pragma once

#include "base/Text.h"
#include "engine/Protocol.h"

#include <chrono>

namespace sonavel {

struct NowPlaying {
    enum class State {
        /// There is no player.
        Nothing,
        Connecting,
        Buffering,
        Playing,
        /// Held by the user.
        Held,
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

    friend bool operator==(const NowPlaying&, const NowPlaying&) = default;
};

} // namespace sonavel
