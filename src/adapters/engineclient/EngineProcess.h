// Stream players whose sound comes from the engine program.
#pragma once

#include "adapters/EventLoop.h"
#include "adapters/engineclient/EngineConnection.h"
#include "adapters/engineclient/PlayedStream.h"
#include "platform/StreamPlayer.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace sonavel {

class NotificationCenter;

/// The engine is a process of its own, so that a decoder which crashes takes nothing else with it; engine/Confinement.h
/// says what else it must not do. One stream sounds at a time: the player on which `play` was called last is
/// attached to the engine; destroying it silences it. A stream that breaks is opened again, and an engine that is gone
/// is started again, for as long as the player exists and is not paused. Main thread; nothing blocks.
class EngineProcess : public StreamPlayers {
public:
    /// `program` is the engine's file. Nothing is started yet.
    EngineProcess(EventLoop& eventLoop, NotificationCenter& notificationCenter, std::string program,
        const ReconnectPolicy::Limits& limits = {});

    /// Starts the engine, so that the first stream need not wait for it. Does nothing when it runs.
    void start();

    [[nodiscard]] std::unique_ptr<StreamPlayer> playerWithPlayerItem(std::shared_ptr<const PlayerItem> item) override;

    void setObserver(Observer observer) override { observer_ = std::move(observer); }

    /// A broken stream is opened again at once, and further attempts wait shortly again. For when the machine has
    /// slept, or the network has come back.
    void reconnectNow();

private:
    class Player;

    /// The player that is attached to the engine.
    struct Current {
        const Player& player;
        PlayedStream stream;
        std::unique_ptr<EventLoop::Registration> timer = nullptr;
        std::unique_ptr<EventLoop::Registration> loadTimer = nullptr;
    };

    void attach(const Player& player);
    void detach(const Player& player);
    void setPaused(const Player& player, bool isPaused);
    void sendSound(const Player& player);
    void sendStream();
    [[nodiscard]] bool isAttached(const Player& player) const { return current_ && &current_->player == &player; }

    void open();
    void apply(ReconnectPolicy::Action action);
    void receive(const EngineEvent& event);
    void breakDown(PlaybackFailure failure);
    void onEngineExited();
    void post(const char* notification) const;

    void watchTime();
    void show();
    [[nodiscard]] static ReconnectPolicy::Time now();

    EventLoop& eventLoop_;
    NotificationCenter& notificationCenter_;
    const std::string program_;
    const ReconnectPolicy::Limits limits_;
    Observer observer_;
    std::unique_ptr<EngineConnection> engine_;
    /// The engine has begun with a load before, so that it is not busy with its own start.
    bool engineIsReady_ = false;

    std::optional<Current> current_;
    std::uint64_t load_ = 0;
    StreamReport shown_;
};

} // namespace sonavel
