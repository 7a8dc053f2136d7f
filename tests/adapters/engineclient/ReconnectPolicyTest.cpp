#include "adapters/engineclient/ReconnectPolicy.h"

#include <gtest/gtest.h>

#include <vector>

namespace sonavel {
namespace {

using namespace std::chrono_literals;
using Action = ReconnectPolicy::Action;
using Time = ReconnectPolicy::Time;

/// A policy at a settable time.
struct Stream {
    ReconnectPolicy policy{ReconnectPolicy::Limits{}};
    Time now = 1000s;

    Stream() { policy.opened(now); }

    /// Lets time pass to the policy's deadline, which has to be `expected` from now, and asks it.
    Action adviceAfter(Time expected)
    {
        EXPECT_EQ(policy.deadline(), now + expected);
        now += expected;
        EXPECT_EQ(policy.dueAction(now - 1ms), Action::Nothing) << "too early";
        return policy.dueAction(now);
    }

    /// Breaks, and is opened again after `delay`.
    void breakFor(Time delay)
    {
        policy.broke(now);
        EXPECT_EQ(adviceAfter(delay), Action::Open);
        policy.opened(now);
    }

    void playFor(Time time)
    {
        policy.sounds(now);
        now += time;
    }
};

TEST(ReconnectPolicy, AStreamThatKeepsBreakingIsOpenedEverLessOftenButNeverGivenUp)
{
    Stream stream;
    for (const Time delay : {1s, 2s, 4s, 8s, 16s, 30s, 30s, 30s})
        stream.breakFor(delay);
}

TEST(ReconnectPolicy, OnlyAStreamThatPlayedForAWhileStartsWithTheShortestDelay)
{
    for (const auto& [played, delay] : {std::pair<Time, Time>{9s, 2s}, {10s, 1s}}) {
        Stream stream;
        stream.breakFor(1s);
        stream.playFor(played);
        stream.breakFor(delay);
    }
}

TEST(ReconnectPolicy, AStreamThatDoesNotOpenOrFallsSilentIsGivenUpAndOpenedAgain)
{
    Stream opening;
    EXPECT_EQ(opening.adviceAfter(20s), Action::GiveUp);
    EXPECT_EQ(opening.adviceAfter(1s), Action::Open);

    Stream silent;
    silent.playFor(60s);
    EXPECT_EQ(silent.policy.deadline(), std::nullopt);
    silent.policy.isSilent(silent.now);
    silent.now += 9s;
    silent.playFor(1h);
    EXPECT_EQ(silent.policy.dueAction(silent.now), Action::Nothing) << "it sounded again in time";
    silent.policy.isSilent(silent.now);
    EXPECT_EQ(silent.adviceAfter(10s), Action::GiveUp);
    EXPECT_EQ(silent.adviceAfter(1s), Action::Open);
}

TEST(ReconnectPolicy, NothingIsOpenedOrGivenUpWhileHeld)
{
    for (const bool isBroken : {false, true}) {
        Stream stream;
        stream.playFor(5s);
        stream.policy.paused(stream.now);
        if (isBroken)
            stream.policy.broke(stream.now);
        stream.now += 24h;
        EXPECT_EQ(stream.policy.deadline(), std::nullopt);
        EXPECT_EQ(stream.policy.nextAttempt(), std::nullopt);
        EXPECT_EQ(stream.policy.dueAction(stream.now), Action::Nothing);
        EXPECT_EQ(stream.policy.resumed(stream.now), Action::Open);
    }
}

TEST(ReconnectPolicy, AShortHoldGoesOnAndHasItsOwnTimeToSound)
{
    Stream stream;
    stream.playFor(5s);
    stream.policy.paused(stream.now);
    stream.now += 20s;
    EXPECT_EQ(stream.policy.resumed(stream.now), Action::Nothing);
    EXPECT_EQ(stream.adviceAfter(10s), Action::GiveUp);
}

TEST(ReconnectPolicy, AHoldLastsFromItsBeginningHoweverOftenItIsAskedFor)
{
    Stream stream;
    stream.playFor(5s);
    for (const Time passed : {15s, 6s}) {
        stream.policy.paused(stream.now);
        stream.now += passed;
    }
    EXPECT_EQ(stream.policy.resumed(stream.now), Action::Open);
}

TEST(ReconnectPolicy, AStreamThatBrokeIsOpenedAtOnceWhenItIsContinuedOrTheNetworkIsBack)
{
    Stream held;
    held.policy.broke(held.now);
    held.policy.paused(held.now);
    EXPECT_EQ(held.policy.resumed(held.now), Action::Open);

    Stream offline;
    for (const Time delay : {1s, 2s, 4s})
        offline.breakFor(delay);
    offline.policy.broke(offline.now);
    EXPECT_EQ(offline.policy.reconnectNow(offline.now), Action::Open);
    offline.policy.opened(offline.now);
    offline.breakFor(1s);
}

TEST(ReconnectPolicy, AStreamThatSoundsWhenTheMachineWakesHasToProveItselfAgain)
{
    Stream stream;
    stream.playFor(60s);
    EXPECT_EQ(stream.policy.reconnectNow(stream.now), Action::Nothing);
    EXPECT_EQ(stream.policy.deadline(), std::nullopt) << "it may be sound";
    stream.playFor(9s);
    stream.policy.isSilent(stream.now);
    EXPECT_EQ(stream.adviceAfter(2s), Action::GiveUp);
    EXPECT_EQ(stream.adviceAfter(1s), Action::Open);

    Stream silent;
    silent.playFor(60s);
    silent.policy.isSilent(silent.now);
    silent.now += 3s;
    EXPECT_EQ(silent.policy.reconnectNow(silent.now), Action::GiveUp);

    Stream stableAfter;
    stableAfter.playFor(60s);
    EXPECT_EQ(stableAfter.policy.reconnectNow(stableAfter.now), Action::Nothing);
    stableAfter.playFor(10s);
    stableAfter.policy.isSilent(stableAfter.now);
    EXPECT_EQ(stableAfter.adviceAfter(10s), Action::GiveUp);
}

} // namespace
} // namespace sonavel
