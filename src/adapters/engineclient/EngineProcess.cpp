#include "adapters/engineclient/EngineProcess.h"

#include "engine/StreamTitle.h"
#include "platform/NotificationCenter.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <utility>

namespace sonavel {

namespace {

/// How long an engine that was busy with another stream may take to begin with a new one.
constexpr std::chrono::milliseconds maxChange{700};

} // namespace

/// Is attached to the engine from its first `play` until it is destroyed or another player plays.
class EngineProcess::Player : public StreamPlayer {
public:
    Player(EngineProcess& engine, std::shared_ptr<const PlayerItem> item)
        : engine_(engine)
        , item_(std::move(item))
    {
    }
    ~Player() override { engine_.detach(*this); }

    void play() override
    {
        engine_.attach(*this);
        engine_.setPaused(*this, false);
    }
    void pause() override { engine_.setPaused(*this, true); }
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
    const ReconnectPolicy::Limits& limits)
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
        eventLoop_, program_, [this](const EngineEvent& event) { receive(event); }, [this] { onEngineExited(); });
}

std::unique_ptr<StreamPlayer> EngineProcess::playerWithPlayerItem(std::shared_ptr<const PlayerItem> item)
{
    return std::make_unique<Player>(*this, std::move(item));
}

void EngineProcess::reconnectNow()
{
    if (current_)
        apply(current_->stream.policy.reconnectNow(now()));
}

void EngineProcess::attach(const Player& player)
{
    if (isAttached(player))
        return;
    current_.emplace(Current{player, PlayedStream(limits_)});
    open();
}

void EngineProcess::detach(const Player& player)
{
    if (!isAttached(player))
        return;
    current_.reset();
    if (engine_)
        engine_->send(BareCommand::Stop);
    show();
}

void EngineProcess::setPaused(const Player& player, bool isPaused)
{
    if (!isAttached(player) || current_->stream.isPaused() == isPaused)
        return;
    const auto action = current_->stream.setPaused(isPaused, now());
    if (action == ReconnectPolicy::Action::Nothing && engine_)
        engine_->send(isPaused ? BareCommand::Pause : BareCommand::Resume);
    apply(action);
}

void EngineProcess::sendSound(const Player& player)
{
    if (!isAttached(player) || !engine_)
        return;
    engine_->send(VolumeCommand{player.volume()});
    engine_->send(MutedCommand{player.isMuted()});
}

/// All that an engine needs to know of the stream, whatever it played before.
void EngineProcess::sendStream()
{
    const PlayerItem& item = current_->player.item();
    sendSound(current_->player);
    engine_->send(LoadCommand{++load_, item.address, streamTitle(item.name.view())});
    if (current_->stream.isPaused())
        engine_->send(BareCommand::Pause);
}

/// Loads the stream afresh, in a new engine where there is none.
void EngineProcess::open()
{
    start();
    current_->stream.opened(now());
    if (!engine_)
        return breakDown(PlaybackFailure::EngineFailed);
    sendStream();
    if (engineIsReady_) {
        // While a name server does not answer, the engine cannot end its present load.
        current_->loadTimer = eventLoop_.after(maxChange, [this] {
            engine_.reset();
            open();
        });
    }
    show();
}

void EngineProcess::apply(ReconnectPolicy::Action action)
{
    if (action == ReconnectPolicy::Action::Open) {
        open();
    } else if (action == ReconnectPolicy::Action::GiveUp) {
        // A new process also gets rid of an attempt that hangs where it cannot be ended.
        engine_.reset();
        breakDown(current_->stream.failureOfSilence());
        start();
    } else {
        show();
    }
}

void EngineProcess::receive(const EngineEvent& event)
{
    const std::uint64_t load = std::visit([](const auto& about) { return about.load; }, event);
    if (!current_ || load != load_)
        return;
    engineIsReady_ = true;
    current_->loadTimer.reset();
    if (const auto* failed = std::get_if<FailedEvent>(&event))
        return breakDown(failed->failure);
    const bool ranDry = current_->stream.receive(event, now());
    show();
    if (ranDry)
        post(playbackStalledNotification);
}

void EngineProcess::breakDown(PlaybackFailure failure)
{
    ++load_; // further events of this load are of no interest
    current_->loadTimer.reset();
    current_->stream.broke(failure, now());
    show();
    post(newErrorLogEntryNotification);
}

void EngineProcess::onEngineExited()
{
    engine_.reset();
    if (current_)
        breakDown(PlaybackFailure::EngineFailed);
}

void EngineProcess::post(const char* notification) const
{
    notificationCenter_.postNotificationName(notification, static_cast<const StreamPlayer*>(&current_->player));
}

/// Wakes up at the policy's deadline, and at every full second before the next attempt, which is shown.
void EngineProcess::watchTime()
{
    current_->timer.reset();
    const ReconnectPolicy& policy = current_->stream.policy;
    const auto deadline = policy.deadline();
    if (!deadline)
        return;
    constexpr ReconnectPolicy::Time second = std::chrono::seconds(1);
    const auto remaining = std::max(*deadline - now(), ReconnectPolicy::Time(0));
    const auto toFullSecond = (remaining - ReconnectPolicy::Time(1)) % second + ReconnectPolicy::Time(1);
    current_->timer = eventLoop_.after(
        policy.nextAttempt() ? toFullSecond : remaining, [this] { apply(current_->stream.policy.dueAction(now())); });
}

/// To be called after every change of the stream.
void EngineProcess::show()
{
    if (current_)
        watchTime();
    const StreamReport present = current_ ? current_->stream.report(now()) : StreamReport();
    if (present == shown_)
        return;
    shown_ = present;
    if (observer_)
        observer_(present);
}

/// Goes on while the machine sleeps, so that what was paused over a night counts as paused for long.
ReconnectPolicy::Time EngineProcess::now()
{
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return std::chrono::duration_cast<ReconnectPolicy::Time>(
        std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
}

} // namespace sonavel
