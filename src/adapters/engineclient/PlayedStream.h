// The state of the stream that the engine plays.
#pragma once

#include "adapters/engineclient/ReconnectPolicy.h"
#include "engine/Protocol.h"

#include <optional>

namespace sonavel {

/// From the engine's events and the user's pauses to what is reported, and to when the stream is opened again. Pure, as
/// the policy is.
class PlayedStream {
public:
    using Time = ReconnectPolicy::Time;

    explicit PlayedStream(const ReconnectPolicy::Limits& limits)
        : policy(limits)
    {
    }

    ReconnectPolicy policy;

    [[nodiscard]] bool isPaused() const { return isPaused_; }
    /// What is to be done besides pausing or resuming the sound.
    [[nodiscard]] ReconnectPolicy::Action setPaused(bool isPaused, Time now);

    /// The engine has been asked to open it.
    void opened(Time now);
    /// Takes an event other than a failure. Whether the stream has run dry with it.
    [[nodiscard]] bool receive(const EngineEvent& event, Time now);
    void broke(PlaybackFailure failure, Time now);

    /// Why it does not sound, as far as it has come.
    [[nodiscard]] PlaybackFailure failureOfSilence() const;
    [[nodiscard]] StreamReport report(Time now) const;

private:
    [[nodiscard]] bool changeState(StreamState state, Time now);

    bool isPaused_ = false;
    StreamState state_ = StreamState::Connecting;
    Text title_;
    /// Why the last attempt failed; nothing before the first one has, and when it sounds.
    std::optional<PlaybackFailure> failure_;
};

} // namespace sonavel
