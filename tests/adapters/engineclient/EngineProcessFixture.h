// The engine program, the players that it serves and what they tell.
#pragma once

#include "adapters/engineclient/EngineProcess.h"
#include "platform/NotificationCenter.h"
#include "support/PollEventLoop.h"
#include "support/ToneStream.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>

namespace sonavel::test {

class EngineProcessTest : public ::testing::Test {
protected:
    using State = StreamReport::State;

    EngineProcessTest()
    {
        ::setenv("SONAVEL_AUDIO_OUTPUT", "null", 1);
        notifications_.addObserver([this] { ++stalls_; }, playbackStalledNotification, nullptr);
        notifications_.addObserver([this] { ++errors_; }, newErrorLogEntryNotification, nullptr);
        use();
    }

    ~EngineProcessTest() override { player_.reset(); }

    /// Begins anew with another engine, and with delays that a test need not wait for.
    void use(ReconnectPolicy::Limits limits = {}, const std::string& program = SONAVEL_ENGINE)
    {
        limits.initialBackoff = std::chrono::milliseconds(20);
        limits.maxBackoff = std::chrono::milliseconds(100);
        player_.reset();
        engine_.emplace(loop_, notifications_, program, limits);
        engine_->setObserver([this](const StreamReport& shown) {
            shown_ = shown;
            states_.insert(shown.state);
            if (shown.state == State::Reconnecting)
                lastFailure_ = shown.failure;
        });
    }

    /// A new player in the place of the present one, as the program makes it.
    void play(const std::string& address)
    {
        lastFailure_.reset();
        states_.clear();
        auto next = engine_->playerWithPlayerItem(std::make_shared<const PlayerItem>(PlayerItem{address, {}}));
        player_ = std::move(next);
        player_->setVolume(0.5F);
        player_->setMuted(false);
        player_->play();
    }

    [[nodiscard]] bool comesTo(State state)
    {
        return loop_.runUntil([&] { return shown_.state == state; });
    }

    [[nodiscard]] bool failsWith(PlaybackFailure failure)
    {
        return loop_.runUntil([&] { return lastFailure_ == failure; });
    }

    /// Those that were started by this process and are not waited for.
    static std::vector<int> children()
    {
        std::vector<int> found;
        for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
            std::ifstream list(task.path() / "children");
            for (int process = 0; list >> process;)
                found.push_back(process);
        }
        return found;
    }

    PollEventLoop loop_;
    NotificationCenter notifications_;
    int stalls_ = 0;
    int errors_ = 0;
    StreamReport shown_;
    std::optional<PlaybackFailure> lastFailure_;
    /// Those of the present player.
    std::set<State> states_;
    std::optional<EngineProcess> engine_;
    std::unique_ptr<StreamPlayer> player_;
};

} // namespace sonavel::test
