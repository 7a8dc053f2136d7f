#include "adapters/engineclient/ReconnectPolicy.h"

#include <algorithm>

namespace sonavel {

ReconnectPolicy::ReconnectPolicy(const Limits& limits)
    : limits_(limits)
    , delay_(limits.initialBackoff)
{
}

void ReconnectPolicy::opened(Time now)
{
    phase_ = Phase::Opening;
    since_ = now;
    isInDoubt_ = false;
}

void ReconnectPolicy::sounds(Time now)
{
    if (phase_ == Phase::Sounding)
        return;
    phase_ = Phase::Sounding;
    since_ = now;
}

void ReconnectPolicy::isSilent(Time now)
{
    if (phase_ != Phase::Sounding)
        return;
    if (now - since_ >= limits_.stableAfter) {
        delay_ = limits_.initialBackoff;
        isInDoubt_ = false;
    }
    phase_ = Phase::Silent;
    since_ = now;
}

void ReconnectPolicy::broke(Time now)
{
    isSilent(now);
    if (phase_ == Phase::Broken)
        return;
    phase_ = Phase::Broken;
    nextAttempt_ = now + delay_;
    delay_ = std::min(2 * delay_, limits_.maxBackoff);
}

void ReconnectPolicy::paused(Time now)
{
    if (pausedSince_)
        return;
    isSilent(now);
    pausedSince_ = now;
}

ReconnectPolicy::Action ReconnectPolicy::resumed(Time now)
{
    if (!pausedSince_)
        return Action::Nothing;
    const bool hasToOpen = phase_ == Phase::Broken || now - *pausedSince_ > limits_.maxPause;
    pausedSince_.reset();
    since_ = now;
    return hasToOpen ? Action::Open : Action::Nothing;
}

ReconnectPolicy::Action ReconnectPolicy::reconnectNow(Time now)
{
    delay_ = limits_.initialBackoff;
    nextAttempt_ = now;
    isInDoubt_ = true;
    if (phase_ == Phase::Sounding)
        since_ = now;
    return dueAction(now);
}

ReconnectPolicy::Action ReconnectPolicy::dueAction(Time now)
{
    const auto due = deadline();
    if (!due || now < *due)
        return Action::Nothing;
    if (phase_ == Phase::Broken)
        return Action::Open;
    broke(now);
    return Action::GiveUp;
}

std::optional<ReconnectPolicy::Time> ReconnectPolicy::deadline() const
{
    if (pausedSince_ || phase_ == Phase::Sounding)
        return std::nullopt;
    if (phase_ == Phase::Broken)
        return nextAttempt_;
    if (phase_ == Phase::Opening)
        return since_ + limits_.connectTimeout;
    return since_ + (isInDoubt_ ? limits_.stallTimeoutInDoubt : limits_.stallTimeout);
}

std::optional<ReconnectPolicy::Time> ReconnectPolicy::nextAttempt() const
{
    if (pausedSince_ || phase_ != Phase::Broken)
        return std::nullopt;
    return nextAttempt_;
}

} // namespace sonavel
