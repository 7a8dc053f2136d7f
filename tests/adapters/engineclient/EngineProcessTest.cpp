#include "adapters/engineclient/EngineProcessFixture.h"
#include "support/TemporaryFolder.h"

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
    EXPECT_TRUE(comesTo(State::Playing));
    EXPECT_GE(errors_, 1);
}

TEST_F(EngineProcessTest, AStreamThatFallsSilentOnAnOpenConnectionIsOpenedAgain)
{
    use({.stallTimeout = 500ms});
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
    use({.stallTimeout = 1500ms, .maxPause = 1s});
    const ScriptedServer server(playTone);
    play(server.address());
    ASSERT_TRUE(comesTo(State::Playing));

    player_->pause();
    EXPECT_EQ(shown_.state, State::Paused);
    player_->play();
    loop_.runFor(1800ms);
    EXPECT_TRUE(comesTo(State::Playing));
    EXPECT_EQ(server.connectionCount(), 1);

    player_->pause();
    loop_.runFor(1200ms);
    EXPECT_EQ(shown_.state, State::Paused);
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
    EXPECT_EQ(shown_.state, State::Paused);
    EXPECT_EQ(server.connectionCount(), 1);
    player_->play();
    EXPECT_TRUE(comesTo(State::Playing));
}

TEST_F(EngineProcessTest, ATitleGoesWithItsStream)
{
    const ScriptedServer titled(titledTone("Song"));
    const ScriptedServer silent([](ScriptedServer::Connection& connection) { connection.waitUntilClosed(); });
    play(titled.address());
    ASSERT_TRUE(loop_.runUntil([&] { return shown_.title == Text("Song"); }));
    play(silent.address());
    EXPECT_TRUE(shown_.title.isAbsent());
    ASSERT_TRUE(loop_.runUntil([&] { return silent.connectionCount() == 1; }));
    EXPECT_TRUE(shown_.title.isAbsent());
}

/// An engine that begins with one line, and then only writes down the commands that it gets.
class ListeningEngine {
public:
    explicit ListeningEngine(const std::string& line = {})
    {
        folder_.put("engine", "#!/bin/sh\necho '" + line + "' >&0\nexec cat >" + folder_.path("heard") + "\n");
        std::filesystem::permissions(program(), std::filesystem::perms::owner_all);
    }

    [[nodiscard]] std::string program() const { return folder_.path("engine"); }

    /// What follows the word in the lines that begin with it, each with a line feed.
    [[nodiscard]] std::string heard(const std::string& word) const
    {
        std::string result;
        std::ifstream lines(folder_.path("heard"));
        for (std::string line; std::getline(lines, line);)
            result += line.starts_with(word + ' ') ? line.substr(word.size() + 1) + '\n' : "";
        return result;
    }

private:
    TemporaryFolder folder_;
};

TEST_F(EngineProcessTest, AStreamThatIsRecognisedCountsAsConnectingUntilItIsGivenUpAsSilent)
{
    const ListeningEngine engine("state 1 recognised");
    use({.connectTimeout = 1s}, engine.program());
    play("http://radio.example/");
    EXPECT_TRUE(failsWith(PlaybackFailure::Silent));
    EXPECT_EQ(states_, (std::set{State::Connecting, State::Reconnecting}));
}

TEST_F(EngineProcessTest, TheEngineIsGivenOnlyVolumesThatThereAre)
{
    const ListeningEngine engine;
    use({}, engine.program());
    play("http://radio.example/");
    for (const float volume : {7.0F, -1.0F, 1.0F})
        player_->setVolume(volume);
    EXPECT_TRUE(loop_.runUntil([&] { return engine.heard("volume") == "0.500000\n1.000000\n0.000000\n1.000000\n"; }))
        << engine.heard("volume");
}

TEST_F(EngineProcessTest, TheEngineIsGivenTheNameOfTheStationAsAShortLine)
{
    const ListeningEngine engine;
    use({}, engine.program());
    const std::string name = " a\nstop \xE2\x80\xAE" + std::string(1000, 'b');
    engine_->playerWithPlayerItem(std::make_shared<const PlayerItem>(PlayerItem{"http://h/", name}))->play();
    EXPECT_TRUE(loop_.runUntil([&] {
        return engine.heard("load") == "1 http://h/ a stop  " + std::string(492, 'b') + '\n';
    })) << engine.heard("load");
}

TEST_F(EngineProcessTest, OnlyThePlayerThatPlayedLastIsHeardAndLeavesNoConnection)
{
    const ScriptedServer server(playTone);
    play(server.address("/first"));
    ASSERT_TRUE(comesTo(State::Playing));
    auto second =
        engine_->playerWithPlayerItem(std::make_shared<const PlayerItem>(PlayerItem{server.address("/second"), {}}));
    EXPECT_EQ(shown_.state, State::Playing);
    second->play();
    ASSERT_TRUE(loop_.runUntil([&] { return server.connectionCount() == 2 && server.openConnectionCount() == 1; }));
    player_.reset();
    EXPECT_TRUE(comesTo(State::Playing));
    second.reset();
    EXPECT_EQ(shown_.state, State::Nothing);
    EXPECT_TRUE(loop_.runUntil([&] { return server.openConnectionCount() == 0; }));
}

} // namespace
} // namespace sonavel::test
