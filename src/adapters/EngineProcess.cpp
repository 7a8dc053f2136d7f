#include "adapters/EngineProcess.h"

#include "platform/NotificationCenter.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <utility>

namespace sonavel {

namespace {

/// How long an engine that was busy with another stream may take to begin with a new one.
constexpr std::chrono::milliseconds longestChange{700};

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

    [[nodiscard]] const Text& address() const { return item_->address; }
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
    , supervisor_(limits)
{
}

EngineProcess::~EngineProcess() = default;

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

void EngineProcess::setNowPlayingObserver(Observer observer)
{
    observer_ = std::move(observer);
}

void EngineProcess::renewAtOnce()
{
    if (player_)
        follow(supervisor_.renew(now()));
}

void EngineProcess::take(Player& player)
{
    if (player_ == &player)
        return;
    player_ = &player;
    isHeld_ = false;
    hasSounded_ = false;
    supervisor_ = StreamSupervisor(limits_);
    open();
}

void EngineProcess::release(const Player& player)
{
    if (player_ != &player)
        return;
    player_ = nullptr;
    timer_.reset();
    patience_.reset();
    if (engine_)
        engine_->send(StopCommand{});
    show();
}

void EngineProcess::setHeld(const Player& player, bool isHeld)
{
    if (player_ != &player || isHeld_ == isHeld)
        return;
    isHeld_ = isHeld;
    if (isHeld)
        supervisor_.held(now());
    const auto advice = isHeld ? StreamSupervisor::Advice::Nothing : supervisor_.continued(now());
    if (advice == StreamSupervisor::Advice::Nothing && engine_)
        engine_->send(isHeld ? EngineCommand(HoldCommand{}) : EngineCommand(ContinueCommand{}));
    // A hold so short that the engine has nothing to tell of it.
    if (!isHeld && state_ == StreamState::Playing)
        supervisor_.sounds(now());
    follow(advice);
}

void EngineProcess::sendSound(const Player& player)
{
    if (player_ != &player || !engine_)
        return;
    engine_->send(VolumeCommand{player.volume()});
    engine_->send(MutedCommand{player.isMuted()});
}

/// Loads the present player's stream afresh, in a new engine where there is none.
void EngineProcess::open()
{
    start();
    state_ = StreamState::Connecting;
    title_ = Text();
    ++load_;
    supervisor_.opened(now());
    if (!engine_) {
        breakDown(PlaybackFailure::EngineFailed);
        return;
    }
    sendSound(*player_);
    engine_->send(LoadCommand{load_, player_->address()});
    if (engineIsReady_)
        patience_ = eventLoop_.after(longestChange, [this] { replaceStuckEngine(); });
    watchTime();
    show();
}

void EngineProcess::follow(StreamSupervisor::Advice advice)
{
    if (advice == StreamSupervisor::Advice::Open) {
        open();
        return;
    }
    if (advice == StreamSupervisor::Advice::GiveUp) {
        // A new process also gets rid of an attempt that hangs where it cannot be ended.
        engine_.reset();
        breakDown(state_ == StreamState::Connecting ? PlaybackFailure::TimedOut : PlaybackFailure::Silent);
        start();
        return;
    }
    watchTime();
    show();
}

void EngineProcess::receive(const EngineEvent& event)
{
    const std::uint64_t load = std::visit([](const auto& about) { return about.load; }, event);
    if (!player_ || load != load_)
        return;
    engineIsReady_ = true;
    patience_.reset();
    if (const auto* state = std::get_if<StateEvent>(&event)) {
        receiveState(state->state);
    } else if (const auto* title = std::get_if<TitleEvent>(&event)) {
        title_ = title->title.isEmpty() ? Text() : title->title;
        show();
    } else if (const auto* failed = std::get_if<FailedEvent>(&event)) {
        breakDown(failed->failure);
    }
}

void EngineProcess::receiveState(StreamState state)
{
    const bool ranDry = state_ == StreamState::Playing && state != StreamState::Playing && !isHeld_;
    state_ = state;
    if (state == StreamState::Playing) {
        hasSounded_ = true;
        supervisor_.sounds(now());
    } else {
        supervisor_.isSilent(now());
    }
    watchTime();
    show();
    if (ranDry)
        post(playbackStalledNotification);
}

/// While a name server does not answer, the engine can let go of nothing.
void EngineProcess::replaceStuckEngine()
{
    engine_.reset();
    open();
}

void EngineProcess::breakDown(PlaybackFailure failure)
{
    failure_ = failure;
    // What the engine still says of this load is of no interest.
    ++load_;
    patience_.reset();
    supervisor_.broke(now());
    watchTime();
    show();
    post(newErrorLogEntryNotification);
}

void EngineProcess::loseEngine()
{
    engine_.reset();
    if (player_)
        breakDown(PlaybackFailure::EngineFailed);
}

void EngineProcess::post(const char* notification) const
{
    notificationCenter_.postNotificationName(notification, static_cast<const StreamPlayer*>(player_));
}

/// Wakes up at the supervisor's deadline, and at every full second before the next attempt, which is shown.
void EngineProcess::watchTime()
{
    timer_.reset();
    const auto deadline = player_ ? supervisor_.deadline() : std::nullopt;
    if (!deadline)
        return;
    constexpr StreamSupervisor::Time second = std::chrono::seconds(1);
    const auto remaining = std::max(*deadline - now(), StreamSupervisor::Time(0));
    const bool isCountedDown = supervisor_.nextAttempt() && remaining > second;
    const auto toFullSecond = (remaining - StreamSupervisor::Time(1)) % second + StreamSupervisor::Time(1);
    timer_ = eventLoop_.after(isCountedDown ? toFullSecond : remaining, [this] { tick(); });
}

void EngineProcess::tick()
{
    follow(supervisor_.advice(now()));
}

void EngineProcess::show()
{
    const NowPlaying present = nowPlaying();
    if (present == shown_)
        return;
    shown_ = present;
    if (observer_)
        observer_(present);
}

NowPlaying EngineProcess::nowPlaying() const
{
    NowPlaying result;
    if (!player_)
        return result;
    result.title = title_;
    result.hasSounded = hasSounded_;
    if (isHeld_) {
        result.state = NowPlaying::State::Held;
    } else if (const auto attempt = supervisor_.nextAttempt()) {
        result.state = NowPlaying::State::Reconnecting;
        result.failure = failure_;
        result.reconnectIn =
            std::chrono::ceil<std::chrono::seconds>(std::max(*attempt - now(), StreamSupervisor::Time(0)));
    } else if (state_ == StreamState::Playing) {
        result.state = NowPlaying::State::Playing;
    } else {
        result.state = state_ == StreamState::Buffering ? NowPlaying::State::Buffering : NowPlaying::State::Connecting;
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
