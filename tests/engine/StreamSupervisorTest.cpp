#include "adapters/StreamSupervisor.h"

#include <gtest/gtest.h>

#include <vector>

namespace sonavel {
namespace {

using namespace std::chrono_literals;
using Advice = StreamSupervisor::Advice;
using Time = StreamSupervisor::Time;

/// A supervisor at a settable time.
struct Stream {
    StreamSupervisor supervisor{StreamSupervisor::Limits{}};
    Time now = 1000s;

    Stream() { supervisor.opened(now); }

    /// Lets time pass to the supervisor's deadline, which has to be `expected` from now, and asks it.
    Advice adviceAfter(Time expected)
    {
        EXPECT_EQ(supervisor.deadline(), now + expected);
        now += expected;
        EXPECT_EQ(supervisor.advice(now - 1ms), Advice::Nothing) << "too early";
        return supervisor.advice(now);
    }

    /// Breaks, and is opened again after `delay`.
    void breakFor(Time delay)
    {
        supervisor.broke(now);
        EXPECT_EQ(adviceAfter(delay), Advice::Open);
        supervisor.opened(now);
    }

    void playFor(Time time)
    {
        supervisor.sounds(now);
        now += time;
    }
};

TEST(StreamSupervisor, AStreamThatKeepsBreakingIsOpenedEverLessOftenButNeverGivenUp)
{
    Stream stream;
    for (const Time delay : {1s, 2s, 4s, 8s, 16s, 30s, 30s, 30s})
        stream.breakFor(delay);
}

TEST(StreamSupervisor, OnlyAStreamThatPlayedForAWhileStartsWithTheShortestDelay)
{
    for (const auto& [played, delay] : {std::pair<Time, Time>{9s, 2s}, {10s, 1s}}) {
        Stream stream;
        stream.breakFor(1s);
        stream.playFor(played);
        stream.breakFor(delay);
    }
}

TEST(StreamSupervisor, AStreamThatDoesNotOpenOrFallsSilentIsGivenUpAndOpenedAgain)
{
    Stream opening;
    EXPECT_EQ(opening.adviceAfter(20s), Advice::GiveUp);
    EXPECT_EQ(opening.adviceAfter(1s), Advice::Open);

    Stream silent;
    silent.playFor(60s);
    EXPECT_EQ(silent.supervisor.deadline(), std::nullopt);
    silent.supervisor.isSilent(silent.now);
    EXPECT_EQ(silent.adviceAfter(10s), Advice::GiveUp);
    EXPECT_EQ(silent.adviceAfter(1s), Advice::Open);
}

TEST(StreamSupervisor, AStreamThatSoundsAgainInTimeIsLeftAlone)
{
    Stream stream;
    stream.playFor(60s);
    stream.supervisor.isSilent(stream.now);
    stream.now += 9s;
    stream.playFor(1h);
    EXPECT_EQ(stream.supervisor.advice(stream.now), Advice::Nothing);
}

TEST(StreamSupervisor, NothingIsOpenedOrGivenUpWhileHeld)
{
    for (const bool isBroken : {false, true}) {
        Stream stream;
        stream.playFor(5s);
        stream.supervisor.held(stream.now);
        if (isBroken)
            stream.supervisor.broke(stream.now);
        stream.now += 24h;
        EXPECT_EQ(stream.supervisor.deadline(), std::nullopt);
        EXPECT_EQ(stream.supervisor.nextAttempt(), std::nullopt);
        EXPECT_EQ(stream.supervisor.advice(stream.now), Advice::Nothing);
        EXPECT_EQ(stream.supervisor.continued(stream.now), Advice::Open);
    }
}

TEST(StreamSupervisor, AShortHoldGoesOnAndHasItsOwnTimeToSound)
{
    Stream stream;
    stream.playFor(5s);
    stream.supervisor.held(stream.now);
    stream.now += 20s;
    EXPECT_EQ(stream.supervisor.continued(stream.now), Advice::Nothing);
    EXPECT_EQ(stream.adviceAfter(10s), Advice::GiveUp);
}

TEST(StreamSupervisor, AHoldLastsFromItsBeginningHoweverOftenItIsAskedFor)
{
    Stream stream;
    stream.playFor(5s);
    for (const Time passed : {15s, 6s}) {
        stream.supervisor.held(stream.now);
        stream.now += passed;
    }
    EXPECT_EQ(stream.supervisor.continued(stream.now), Advice::Open);
}

TEST(StreamSupervisor, AStreamThatBrokeIsOpenedAtOnceWhenItIsContinuedOrTheNetworkIsBack)
{
    Stream held;
    held.supervisor.broke(held.now);
    held.supervisor.held(held.now);
    EXPECT_EQ(held.supervisor.continued(held.now), Advice::Open);

    Stream offline;
    for (const Time delay : {1s, 2s, 4s})
        offline.breakFor(delay);
    offline.supervisor.broke(offline.now);
    EXPECT_EQ(offline.supervisor.renew(offline.now), Advice::Open);
    offline.supervisor.opened(offline.now);
    offline.breakFor(1s);
}

TEST(StreamSupervisor, AStreamThatSoundsWhenTheMachineWakesHasToProveItselfAgain)
{
    Stream stream;
    stream.playFor(60s);
    EXPECT_EQ(stream.supervisor.renew(stream.now), Advice::Nothing);
    EXPECT_EQ(stream.supervisor.deadline(), std::nullopt) << "it may be sound";
    stream.playFor(9s);
    stream.supervisor.isSilent(stream.now);
    EXPECT_EQ(stream.adviceAfter(2s), Advice::GiveUp);
    EXPECT_EQ(stream.adviceAfter(1s), Advice::Open);

    Stream silent;
    silent.playFor(60s);
    silent.supervisor.isSilent(silent.now);
    silent.now += 3s;
    EXPECT_EQ(silent.supervisor.renew(silent.now), Advice::GiveUp);

    Stream proven;
    proven.playFor(60s);
    EXPECT_EQ(proven.supervisor.renew(proven.now), Advice::Nothing);
    proven.playFor(10s);
    proven.supervisor.isSilent(proven.now);
    EXPECT_EQ(proven.adviceAfter(10s), Advice::GiveUp);
}

} // namespace
} // namespace sonavel
