#include "adapters/engineclient/PlayedStream.h"

#include <algorithm>

namespace sonavel {

ReconnectPolicy::Action PlayedStream::setPaused(bool isPaused, Time now)
{
    isPaused_ = isPaused;
    if (isPaused) {
        policy.paused(now);
        return ReconnectPolicy::Action::Nothing;
    }
    const auto action = policy.resumed(now);
    if (state_ == StreamState::Playing)
        policy.sounds(now); // after a pause so short that the engine has no event of it
    return action;
}

void PlayedStream::opened(Time now)
{
    state_ = StreamState::Connecting;
    title_ = Text();
    policy.opened(now);
}

bool PlayedStream::receive(const EngineEvent& event, Time now)
{
    if (const auto* state = std::get_if<StateEvent>(&event))
        return changeState(state->state, now);
    if (const auto* title = std::get_if<TitleEvent>(&event))
        title_ = title->title.isEmpty() ? Text() : title->title;
    return false;
}

bool PlayedStream::changeState(StreamState state, Time now)
{
    const bool sounds = state == StreamState::Playing;
    const bool ranDry = state_ == StreamState::Playing && !sounds && !isPaused_;
    state_ = state;
    if (sounds) {
        failure_.reset();
        policy.sounds(now);
    } else {
        policy.isSilent(now);
    }
    return ranDry;
}

void PlayedStream::broke(PlaybackFailure failure, Time now)
{
    if (failure != PlaybackFailure::Unknown || !failure_)
        failure_ = failure;
    state_ = StreamState::Connecting;
    policy.broke(now);
}

PlaybackFailure PlayedStream::failureOfSilence() const
{
    if (state_ == StreamState::Connecting)
        return PlaybackFailure::TimedOut;
    return state_ == StreamState::Answered ? PlaybackFailure::NotAStream : PlaybackFailure::Silent;
}

StreamReport PlayedStream::report(Time now) const
{
    using State = StreamReport::State;
    StreamReport report{State::Connecting, title_, PlaybackFailure::Unknown, std::chrono::seconds(0)};
    if (isPaused_) {
        report.state = State::Paused;
    } else if (failure_) {
        report.state = State::Reconnecting;
        report.failure = *failure_;
        const Time wait = std::max(policy.nextAttempt().value_or(now) - now, Time(0));
        report.reconnectIn = std::chrono::ceil<std::chrono::seconds>(wait);
    } else if (state_ >= StreamState::Buffering) {
        report.state = state_ == StreamState::Playing ? State::Playing : State::Buffering;
    }
    return report;
}

} // namespace sonavel
