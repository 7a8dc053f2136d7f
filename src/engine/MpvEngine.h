// Plays one stream at a time with libmpv.
#pragma once

#include "base/NonCopyable.h"
#include "engine/Protocol.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

struct mpv_event;
struct mpv_handle;

namespace sonavel {

/// Carries out commands, and sends events of the present load. One thread.
class MpvEngine : private NonCopyable {
public:
    using SendEvent = std::function<void(const EngineEvent&)>;

    /// Null when libmpv cannot be set up.
    [[nodiscard]] static std::unique_ptr<MpvEngine> create(SendEvent sendEvent);

    ~MpvEngine();

    void perform(const EngineCommand& command);

    /// Becomes readable when there is something for `handleEvents` to do.
    [[nodiscard]] int wakeUpDescriptor() const;
    void handleEvents();

private:
    MpvEngine(mpv_handle* player, SendEvent sendEvent);

    void load(const LoadCommand& command);
    void stop();

    void handle(const mpv_event& event);
    void checkAddress(const mpv_event& event);
    void noteStart(const mpv_event& event);
    void noteEnd(const mpv_event& event);
    void noteProgress(StreamState progress);
    void noteLogLine(const mpv_event& event);
    void showState();
    void showTitle();
    void showFailure();
    void applySound();
    void applyPause();

    [[nodiscard]] bool isPresentEntry(std::int64_t entry) const { return load_ && entry >= firstEntry_; }

    mpv_handle* player_;
    SendEvent sendEvent_;

    float volume_ = 1.0F;
    bool isMuted_ = false;
    bool isPaused_ = false;

    /// The present load; nothing after its failure was sent, and after a stop.
    std::optional<std::uint64_t> load_;
    /// libmpv's number of the first playlist entry of the present load; what belongs to an earlier one comes late.
    std::int64_t firstEntry_ = 0;
    /// The present load's attempts, more than one where its address leads to a playlist.
    int attempts_ = 0;
    /// libmpv has let go of the former load and begun with the present one.
    bool hasBegun_ = false;
    /// The present attempt's state while it does not sound.
    StreamState progress_ = StreamState::Connecting;
    /// The sound output is open and has its volume.
    bool soundIsSet_ = false;
    std::optional<PlaybackFailure> failure_;
    std::optional<StreamState> shownState_;
    Text shownTitle_;
};

} // namespace sonavel
