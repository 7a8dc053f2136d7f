#include "adapters/engineclient/EngineProcessFixture.h"

#include <sys/wait.h>

#include <csignal>

namespace sonavel::test {
namespace {

using namespace std::chrono_literals;
using EngineFaults = EngineProcessTest;

std::string folderOf(int process)
{
    return std::string("/proc/").append(std::to_string(process));
}

std::size_t entriesIn(const std::string& folder)
{
    const std::filesystem::directory_iterator entries(folder);
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

/// In pages.
std::size_t residentMemory(int process)
{
    std::ifstream figures(folderOf(process) + "/statm");
    std::size_t total = 0;
    std::size_t resident = 0;
    figures >> total >> resident;
    return resident;
}

TEST_F(EngineFaults, AnEngineThatIsKilledPlaysAgainAndLeavesNoZombie)
{
    const ScriptedServer server(playTone);
    play(server.address());
    for (int round = 0; round < 3; ++round) {
        ASSERT_TRUE(comesTo(State::Playing));
        ASSERT_EQ(children().size(), 1U);
        ::kill(children().front(), SIGKILL);
        EXPECT_TRUE(failsWith(PlaybackFailure::EngineFailed));
        EXPECT_TRUE(comesTo(State::Playing));
        lastFailure_.reset();
    }
    EXPECT_TRUE(loop_.runUntil([] { return children().size() == 1; }));
}

TEST_F(EngineFaults, AnEngineThatReplacesAStuckOneIsHeldAsItsStreamIs)
{
    const ScriptedServer former(playTone);
    const ScriptedServer next(titledTone("Song"));
    play(former.address());
    ASSERT_TRUE(comesTo(State::Playing));
    const int stuck = children().front();
    ::kill(stuck, SIGSTOP);
    play(next.address());
    player_->pause();
    ASSERT_TRUE(loop_.runUntil([&] { return shown_.title == Text("Song"); }));
    EXPECT_NE(children().back(), stuck);
    loop_.runFor(500ms);
    EXPECT_EQ(shown_.state, State::Paused);
    player_->play();
    EXPECT_EQ(shown_.state, State::Connecting) << "it sounded while it was held";
    EXPECT_TRUE(comesTo(State::Playing));
    EXPECT_EQ(next.connectionCount(), 1);
}

TEST_F(EngineFaults, TheTimersOfAPlayerThatIsGoneAreGoneWithIt)
{
    play("http://127.0.0.1:1/");
    ASSERT_TRUE(failsWith(PlaybackFailure::Refused));
    player_.reset();
    loop_.runFor(300ms);
    EXPECT_EQ(shown_.state, State::Nothing) << "the next attempt was made";

    const ScriptedServer server(playTone);
    play(server.address());
    ASSERT_TRUE(comesTo(State::Playing));
    const int stuck = children().back();
    ::kill(stuck, SIGSTOP);
    play(server.address());
    player_.reset();
    loop_.runFor(1s);
    EXPECT_EQ(shown_.state, State::Nothing);
    EXPECT_EQ(children().back(), stuck) << "an engine that nobody needs was replaced";
}

TEST_F(EngineFaults, AnEngineThatCannotBeStartedOrEndsAtOnceIsAFailureAndNothingWorse)
{
    for (const char* program : {"/nowhere/sonavel-engine", "/", "/bin/true", "/bin/cat"}) {
        use({.connectTimeout = 300ms}, program);
        engine_->start();
        play("http://127.0.0.1:1/");
        player_->setMuted(true);
        player_->pause();
        player_->play();
        EXPECT_TRUE(loop_.runUntil([&] { return lastFailure_.has_value(); })) << program;
    }
}

TEST_F(EngineFaults, AHundredQuickChangesLeaveNoThreadSocketOrMemoryBehind)
{
    const ScriptedServer server(playTone);
    const auto settle = [&] {
        play(server.address());
        ASSERT_TRUE(comesTo(State::Playing));
        ASSERT_TRUE(loop_.runUntil([&] { return server.openConnectionCount() == 1; }));
    };
    const auto changeAHundredTimes = [&] {
        for (int change = 0; change < 100; ++change) {
            play(server.address());
            loop_.runFor(std::chrono::milliseconds(change % 4 * 5));
        }
        settle();
    };
    settle();
    changeAHundredTimes(); // After that the engine has what it needs.
    ASSERT_EQ(children().size(), 1U);
    const int engine = children().front();
    const std::string folder = folderOf(engine);
    const std::size_t threads = entriesIn(folder + "/task");
    const std::size_t descriptors = entriesIn(folder + "/fd");
    const std::size_t memory = residentMemory(engine);
    const std::size_t ownDescriptors = entriesIn("/proc/self/fd");

    changeAHundredTimes();
    ASSERT_EQ(children(), std::vector{engine});
    EXPECT_LE(entriesIn(folder + "/task"), threads);
    EXPECT_LE(entriesIn(folder + "/fd"), descriptors);
#ifdef __SANITIZE_ADDRESS__
    constexpr std::size_t allowed = std::size_t{400} * 256; // What was freed is kept for a while.
#else
    constexpr std::size_t allowed = std::size_t{10} * 256;
#endif
    EXPECT_LE(residentMemory(engine), memory + allowed);
    EXPECT_LE(entriesIn("/proc/self/fd"), ownDescriptors);
}

TEST_F(EngineFaults, NoDescriptorGoesToTheEngineOrIsLeftByOne)
{
    constexpr int inheritable = 200;
    ASSERT_EQ(::dup2(STDERR_FILENO, inheritable), inheritable);
    const std::size_t before = entriesIn("/proc/self/fd");
    for (const char* program : {SONAVEL_ENGINE, "/nowhere/sonavel-engine"}) {
        use({}, program);
        engine_->start();
        for (const int engine : children())
            EXPECT_FALSE(std::filesystem::is_symlink(folderOf(engine) + "/fd/" + std::to_string(inheritable)));
    }
    use();
    EXPECT_EQ(entriesIn("/proc/self/fd"), before);
    ::close(inheritable);
}

TEST_F(EngineFaults, TheEngineRunsNoScripts)
{
    const ScriptedServer server(playTone);
    play(server.address());
    ASSERT_TRUE(comesTo(State::Playing));
    for (const auto& thread : std::filesystem::directory_iterator(folderOf(children().back()) + "/task")) {
        std::string name;
        std::getline(std::ifstream(thread.path() / "comm"), name);
        EXPECT_EQ(name.find("script"), std::string::npos) << name;
    }
}

TEST_F(EngineFaults, AnEngineWhosePlayerCrashedEnds)
{
    // A player that starts an engine, reports its process number and crashes.
    std::array<int, 2> report{};
    ASSERT_EQ(::pipe(report.data()), 0);
    const int player = ::fork();
    if (player == 0) {
        engine_->start();
        const int engine = children().front();
        (void)!::write(report[1], &engine, sizeof engine);
        ::_exit(0);
    }
    int engine = 0;
    ASSERT_EQ(::read(report[0], &engine, sizeof engine), static_cast<ssize_t>(sizeof engine));
    ASSERT_EQ(::waitpid(player, nullptr, 0), player);
    const std::string status = folderOf(engine) + "/cmdline";
    const auto isGone = [&] { return std::ifstream(status).get() == std::ifstream::traits_type::eof(); };
    EXPECT_TRUE(loop_.runUntil(isGone));
    ::close(report[0]);
    ::close(report[1]);
}

} // namespace
} // namespace sonavel::test
