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
        /// Broken; opened again in `reconnectIn`.
        Reconnecting,
    };

    State state = State::Nothing;
    /// The stream's title; absent when it has none.
    Text title;
    /// Why the stream broke the last time; meaningful with `Reconnecting`.
    PlaybackFailure failure = PlaybackFailure::Unknown;
    /// How long until the next attempt, in whole seconds; meaningful with `Reconnecting`.
    std::chrono::seconds reconnectIn{0};
    /// Whether this stream has sounded since it was asked for.
    bool hasSounded = false;

    friend bool operator==(const NowPlaying&, const NowPlaying&) = default;
};

} // namespace sonavel
