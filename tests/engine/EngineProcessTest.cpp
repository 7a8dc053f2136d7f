#include "engine/EngineProcessFixture.h"

namespace sonavel::test {
namespace {

using namespace std::chrono_literals;

TEST_F(EngineProcessTest, AStreamThatEndsIsOpenedAgain)
{
    std::atomic<int> count = 0;
    const ScriptedServer server([&](ScriptedServer::Connection& connection) {
        if (++count == 1)
            beginTone(connection);
        else
            playTone(connection);
    });
    play(server.address());
    EXPECT_TRUE(failsWith(PlaybackFailure::Ended));
    EXPECT_TRUE(shown_.hasSounded);
    EXPECT_TRUE(comesTo(State::Playing));
    EXPECT_GE(errors_, 1);
}

TEST_F(EngineProcessTest, AStreamThatFallsSilentOnAnOpenConnectionIsOpenedAgain)
{
    StreamSupervisor::Limits limits = shortDelays;
    limits.silence = 500ms;
    use(limits);
    std::atomic<int> count = 0;
    const ScriptedServer server([&](ScriptedServer::Connection& connection) {
        if (++count > 1)
            return playTone(connection);
        beginTone(connection);
        connection.waitUntilClosed();
    });
    play(server.address());
    EXPECT_TRUE(failsWith(PlaybackFailure::Silent));
    EXPECT_GE(stalls_, 1);
    EXPECT_TRUE(comesTo(State::Playing));
}

TEST_F(EngineProcessTest, AShortHoldGoesOnAndALongOneIsOpenedAgain)
{
    StreamSupervisor::Limits limits = shortDelays;
    limits.hold = 1s;
    use(limits);
    const ScriptedServer server(playTone);
    play(server.address());
    ASSERT_TRUE(comesTo(State::Playing));

    player_->pause();
    EXPECT_EQ(shown_.state, State::Held);
    player_->play();
    EXPECT_TRUE(comesTo(State::Playing));
    EXPECT_EQ(server.connectionCount(), 1);

    player_->pause();
    loop_.runFor(1200ms);
    EXPECT_EQ(shown_.state, State::Held);
    player_->play();
    EXPECT_TRUE(loop_.runUntil([&] { return server.connectionCount() == 2; }));
    EXPECT_TRUE(comesTo(State::Playing));
}

TEST_F(EngineProcessTest, AHeldStreamThatBreaksStaysHeldUntilItIsContinued)
{
    const ScriptedServer server([](ScriptedServer::Connection& connection) { beginTone(connection); });
    play(server.address());
    ASSERT_TRUE(comesTo(State::Playing));
    player_->pause();
    loop_.runFor(500ms);
    EXPECT_EQ(shown_.state, State::Held);
    EXPECT_EQ(server.connectionCount(), 1);
    player_->play();
    EXPECT_TRUE(comesTo(State::Playing));
}

TEST_F(EngineProcessTest, APlayerThatIsGoneLeavesNoConnection)
{
    std::atomic<bool> isClosed = false;
    const ScriptedServer server([&](ScriptedServer::Connection& connection) {
        playTone(connection);
        isClosed = true;
    });
    play(server.address());
    ASSERT_TRUE(comesTo(State::Playing));
    player_.reset();
    EXPECT_EQ(shown_.state, State::Nothing);
    EXPECT_TRUE(loop_.runUntil([&] { return isClosed.load(); }));
}

TEST_F(EngineProcessTest, OnlyThePlayerThatPlayedLastIsHeard)
{
    std::atomic<int> open = 0;
    const ScriptedServer server([&](ScriptedServer::Connection& connection) {
        ++open;
        playTone(connection);
        --open;
    });
    play(server.address("/first"));
    ASSERT_TRUE(comesTo(State::Playing));
    const auto second =
        engine_->playerWithPlayerItem(std::make_shared<const PlayerItem>(PlayerItem{server.address("/second")}));
    EXPECT_EQ(shown_.state, State::Playing);
    second->play();
    ASSERT_TRUE(loop_.runUntil([&] { return server.connectionCount() == 2 && open == 1; }));
    player_.reset();
    EXPECT_TRUE(comesTo(State::Playing));
}

} // namespace
} // namespace sonavel::test
