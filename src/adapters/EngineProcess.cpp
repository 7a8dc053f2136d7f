#include "adapters/EngineProcess.h"

#include "engine/StreamTitle.h"
#include "platform/NotificationCenter.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <utility>

namespace sonavel {

namespace {

/// How long an engine that was busy with another stream may take to begin with a new one.
constexpr std::chrono::milliseconds longestChange{700};

/// Why a stream does not sound that comes no further than `state`.
PlaybackFailure failureOfSilence(StreamState state)
{
    if (state == StreamState::Connecting)
        return PlaybackFailure::TimedOut;
    return state == StreamState::Answered ? PlaybackFailure::NotAStream : PlaybackFailure::Silent;
}

} // namespace

/// Has the engine from its first `play` until it is destroyed or another player plays.
class EngineProcess::Player : public StreamPlayer {
public:
    Player(EngineProcess& engine, std::shared_ptr<const PlayerItem> item)
        : engine_(engine)
        , item_(std::move(item))
    {
    }
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;
    ~Player() override { engine_.release(*this); }

    void play() override
    {
        engine_.take(*this);
        engine_.setHeld(*this, false);
    }
    void pause() override { engine_.setHeld(*this, true); }
    void setVolume(float volume) override
    {
        volume_ = std::clamp(volume, 0.0F, 1.0F);
        engine_.sendSound(*this);
    }
    void setMuted(bool muted) override
    {
        isMuted_ = muted;
        engine_.sendSound(*this);
    }

    [[nodiscard]] const PlayerItem& item() const { return *item_; }
    [[nodiscard]] float volume() const { return volume_; }
    [[nodiscard]] bool isMuted() const { return isMuted_; }

private:
    EngineProcess& engine_;
    std::shared_ptr<const PlayerItem> item_;
    float volume_ = 1.0F;
    bool isMuted_ = false;
};

EngineProcess::EngineProcess(EventLoop& eventLoop, NotificationCenter& notificationCenter, std::string program,
    const StreamSupervisor::Limits& limits)
    : eventLoop_(eventLoop)
    , notificationCenter_(notificationCenter)
    , program_(std::move(program))
    , limits_(limits)
{
}

void EngineProcess::start()
{
    if (engine_)
        return;
    engineIsReady_ = false;
    engine_ = EngineConnection::create(
        eventLoop_, program_, [this](const EngineEvent& event) { receive(event); }, [this] { loseEngine(); });
}

std::unique_ptr<StreamPlayer> EngineProcess::playerWithPlayerItem(std::shared_ptr<const PlayerItem> item)
{
    return std::make_unique<Player>(*this, std::move(item));
}

void EngineProcess::renewAtOnce()
{
    if (stream_)
        follow(stream_->supervisor.renew(now()));
}

void EngineProcess::take(const Player& player)
{
    if (isTaken(player))
        return;
    stream_.emplace(Stream{player, StreamSupervisor(limits_)});
    open();
}

void EngineProcess::release(const Player& player)
{
    if (!isTaken(player))
        return;
    stream_.reset();
    if (engine_)
        engine_->send(StopCommand{});
    show();
}

void EngineProcess::setHeld(const Player& player, bool isHeld)
{
    if (!isTaken(player) || stream_->isHeld == isHeld)
        return;
    stream_->isHeld = isHeld;
    auto& supervisor = stream_->supervisor;
    if (isHeld)
        supervisor.held(now());
    const auto advice = isHeld ? StreamSupervisor::Advice::Nothing : supervisor.continued(now());
    if (advice == StreamSupervisor::Advice::Nothing && engine_)
        engine_->send(isHeld ? EngineCommand(HoldCommand{}) : EngineCommand(ContinueCommand{}));
    // A hold so short that the engine has nothing to tell of it.
    if (!isHeld && stream_->state == StreamState::Playing)
        supervisor.sounds(now());
    follow(advice);
}

void EngineProcess::sendSound(const Player& player)
{
    if (!isTaken(player) || !engine_)
        return;
    engine_->send(VolumeCommand{player.volume()});
    engine_->send(MutedCommand{player.isMuted()});
}

/// All that an engine needs to know of the stream, whatever it played before.
void EngineProcess::sendStream()
{
    const PlayerItem& item = stream_->player.item();
    sendSound(stream_->player);
    engine_->send(LoadCommand{++load_, item.address, streamTitle(item.name.view())});
    if (stream_->isHeld)
        engine_->send(HoldCommand{});
}

/// Loads the stream afresh, in a new engine where there is none.
void EngineProcess::open()
{
    start();
    stream_->state = StreamState::Connecting;
    stream_->title = Text();
    stream_->supervisor.opened(now());
    if (!engine_)
        return breakDown(PlaybackFailure::EngineFailed);
    sendStream();
    if (engineIsReady_) {
        // While a name server does not answer, the engine can let go of nothing.
        stream_->patience = eventLoop_.after(longestChange, [this] {
            engine_.reset();
            open();
        });
    }
    show();
}

void EngineProcess::follow(StreamSupervisor::Advice advice)
{
    if (advice == StreamSupervisor::Advice::Open) {
        open();
    } else if (advice == StreamSupervisor::Advice::GiveUp) {
        // A new process also gets rid of an attempt that hangs where it cannot be ended.
        engine_.reset();
        breakDown(failureOfSilence(stream_->state));
        start();
    } else {
        show();
    }
}

void EngineProcess::receive(const EngineEvent& event)
{
    const std::uint64_t load = std::visit([](const auto& about) { return about.load; }, event);
    if (!stream_ || load != load_)
        return;
    engineIsReady_ = true;
    stream_->patience.reset();
    if (const auto* state = std::get_if<StateEvent>(&event)) {
        receiveState(state->state);
    } else if (const auto* title = std::get_if<TitleEvent>(&event)) {
        stream_->title = title->title.isEmpty() ? Text() : title->title;
        show();
    } else if (const auto* failed = std::get_if<FailedEvent>(&event)) {
        breakDown(failed->failure);
    }
}

void EngineProcess::receiveState(StreamState state)
{
    const bool sounds = state == StreamState::Playing;
    const bool ranDry = stream_->state == StreamState::Playing && !sounds && !stream_->isHeld;
    stream_->state = state;
    if (sounds) {
        stream_->failure.reset();
        stream_->supervisor.sounds(now());
    } else {
        stream_->supervisor.isSilent(now());
    }
    show();
    if (ranDry)
        post(playbackStalledNotification);
}

void EngineProcess::breakDown(PlaybackFailure failure)
{
    if (failure != PlaybackFailure::Unknown || !stream_->failure)
        stream_->failure = failure;
    stream_->state = StreamState::Connecting;
    // What the engine still says of this load is of no interest.
    ++load_;
    stream_->patience.reset();
    stream_->supervisor.broke(now());
    show();
    post(newErrorLogEntryNotification);
}

void EngineProcess::loseEngine()
{
    engine_.reset();
    if (stream_)
        breakDown(PlaybackFailure::EngineFailed);
}

void EngineProcess::post(const char* notification) const
{
    notificationCenter_.postNotificationName(notification, static_cast<const StreamPlayer*>(&stream_->player));
}

/// Wakes up at the supervisor's deadline, and at every full second before the next attempt, which is shown.
void EngineProcess::watchTime()
{
    stream_->timer.reset();
    const auto deadline = stream_->supervisor.deadline();
    if (!deadline)
        return;
    constexpr StreamSupervisor::Time second = std::chrono::seconds(1);
    const auto remaining = std::max(*deadline - now(), StreamSupervisor::Time(0));
    const auto toFullSecond = (remaining - StreamSupervisor::Time(1)) % second + StreamSupervisor::Time(1);
    stream_->timer = eventLoop_.after(stream_->supervisor.nextAttempt() ? toFullSecond : remaining,
        [this] { follow(stream_->supervisor.advice(now())); });
}

/// To be called after every change of the stream.
void EngineProcess::show()
{
    if (stream_)
        watchTime();
    const NowPlaying present = nowPlaying();
    if (present == shown_)
        return;
    shown_ = present;
    if (observer_)
        observer_(present);
}

NowPlaying EngineProcess::nowPlaying() const
{
    using State = NowPlaying::State;
    if (!stream_)
        return {};
    NowPlaying result{State::Connecting, stream_->title, PlaybackFailure::Unknown, std::chrono::seconds(0)};
    if (stream_->isHeld) {
        result.state = State::Held;
    } else if (stream_->failure) {
        result.state = State::Reconnecting;
        result.failure = *stream_->failure;
        const auto attempt = stream_->supervisor.nextAttempt().value_or(now());
        result.reconnectIn =
            std::chrono::ceil<std::chrono::seconds>(std::max(attempt - now(), StreamSupervisor::Time(0)));
    } else if (stream_->state >= StreamState::Buffering) {
        result.state = stream_->state == StreamState::Playing ? State::Playing : State::Buffering;
    }
    return result;
}

/// Goes on while the machine sleeps, so that what was held over a night counts as held for long.
StreamSupervisor::Time EngineProcess::now()
{
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return std::chrono::duration_cast<StreamSupervisor::Time>(
        std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
}

} // namespace sonavel
