#include "adapters/StreamSupervisor.h"

#include <algorithm>

namespace sonavel {

StreamSupervisor::StreamSupervisor(const Limits& limits)
    : limits_(limits)
    , delay_(limits.shortestDelay)
{
}

void StreamSupervisor::opened(Time now)
{
    phase_ = Phase::Opening;
    since_ = now;
    isInDoubt_ = false;
}

void StreamSupervisor::sounds(Time now)
{
    if (phase_ == Phase::Sounding)
        return;
    phase_ = Phase::Sounding;
    since_ = now;
}

void StreamSupervisor::isSilent(Time now)
{
    if (phase_ != Phase::Sounding)
        return;
    if (now - since_ >= limits_.proven) {
        delay_ = limits_.shortestDelay;
        isInDoubt_ = false;
    }
    phase_ = Phase::Silent;
    since_ = now;
}

void StreamSupervisor::broke(Time now)
{
    isSilent(now);
    if (phase_ == Phase::Broken)
        return;
    phase_ = Phase::Broken;
    nextAttempt_ = now + delay_;
    delay_ = std::min(2 * delay_, limits_.longestDelay);
}

void StreamSupervisor::held(Time now)
{
    if (heldSince_)
        return;
    isSilent(now);
    heldSince_ = now;
}

StreamSupervisor::Advice StreamSupervisor::continued(Time now)
{
    if (!heldSince_)
        return Advice::Nothing;
    const bool hasToOpen = phase_ == Phase::Broken || now - *heldSince_ > limits_.hold;
    heldSince_.reset();
    since_ = now;
    return hasToOpen ? Advice::Open : Advice::Nothing;
}

StreamSupervisor::Advice StreamSupervisor::renew(Time now)
{
    delay_ = limits_.shortestDelay;
    nextAttempt_ = now;
    isInDoubt_ = true;
    if (phase_ == Phase::Sounding)
        since_ = now;
    return advice(now);
}

StreamSupervisor::Advice StreamSupervisor::advice(Time now)
{
    const auto due = deadline();
    if (!due || now < *due)
        return Advice::Nothing;
    if (phase_ == Phase::Broken)
        return Advice::Open;
    broke(now);
    return Advice::GiveUp;
}

std::optional<StreamSupervisor::Time> StreamSupervisor::deadline() const
{
    if (heldSince_ || phase_ == Phase::Sounding)
        return std::nullopt;
    if (phase_ == Phase::Broken)
        return nextAttempt_;
    if (phase_ == Phase::Opening)
        return since_ + limits_.opening;
    return since_ + (isInDoubt_ ? limits_.silenceInDoubt : limits_.silence);
}

std::optional<StreamSupervisor::Time> StreamSupervisor::nextAttempt() const
{
    if (heldSince_ || phase_ != Phase::Broken)
        return std::nullopt;
    return nextAttempt_;
}

} // namespace sonavel
