// Stream players whose sound comes from the engine program.
#pragma once

#include "adapters/EngineConnection.h"
#include "adapters/EventLoop.h"
#include "adapters/NowPlaying.h"
#include "adapters/StreamSupervisor.h"
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
/// says what else it is kept from. One stream sounds at a time: the player on which `play` was called last has the
/// engine; destroying it silences it. A stream that breaks is opened again, and an engine that is gone is started
/// again, for as long as the player exists and is not held. Main thread; nothing blocks.
class EngineProcess : public StreamPlayers {
public:
    using Observer = std::function<void(const NowPlaying&)>;

    /// `program` is the engine's file. Nothing is started yet.
    EngineProcess(EventLoop& eventLoop, NotificationCenter& notificationCenter, std::string program,
        const StreamSupervisor::Limits& limits = {});

    /// Starts the engine, so that the first stream need not wait for it. Does nothing when it runs.
    void start();

    [[nodiscard]] std::unique_ptr<StreamPlayer> playerWithPlayerItem(std::shared_ptr<const PlayerItem> item) override;

    /// Calls `observer` at every change of what becomes of the present stream, about once a second while a broken one
    /// waits.
    void setNowPlayingObserver(Observer observer) { observer_ = std::move(observer); }

    /// A broken stream is opened again at once, and further attempts wait shortly again. For when the machine has
    /// slept, or the network has come back.
    void renewAtOnce();

private:
    class Player;

    /// The stream of the player that has the engine.
    struct Stream {
        const Player& player;
        StreamSupervisor supervisor;
        bool isHeld = false;
        StreamState state = StreamState::Connecting;
        Text title = {};
        /// Why the last attempt failed; nothing before the first one has, and when it sounds.
        std::optional<PlaybackFailure> failure = std::nullopt;
        std::unique_ptr<EventLoop::Registration> timer = nullptr;
        std::unique_ptr<EventLoop::Registration> patience = nullptr;
    };

    void take(const Player& player);
    void release(const Player& player);
    void setHeld(const Player& player, bool isHeld);
    void sendSound(const Player& player);
    void sendStream();
    [[nodiscard]] bool isTaken(const Player& player) const { return stream_ && &stream_->player == &player; }

    void open();
    void follow(StreamSupervisor::Advice advice);
    void receive(const EngineEvent& event);
    void receiveState(StreamState state);
    void breakDown(PlaybackFailure failure);
    void loseEngine();
    void post(const char* notification) const;

    void watchTime();
    void show();
    [[nodiscard]] NowPlaying nowPlaying() const;
    [[nodiscard]] static StreamSupervisor::Time now();

    EventLoop& eventLoop_;
    NotificationCenter& notificationCenter_;
    const std::string program_;
    const StreamSupervisor::Limits limits_;
    Observer observer_;
    std::unique_ptr<EngineConnection> engine_;
    /// The engine has begun with a load before, so that it is not busy with its own start.
    bool engineIsReady_ = false;

    /// Nothing when no player has the engine.
    std::optional<Stream> stream_;
    std::uint64_t load_ = 0;
    NowPlaying shown_;
};

} // namespace sonavel
