// Decides when a stream is opened again.
#pragma once

#include <chrono>
#include <optional>

namespace sonavel {

/// A stream that breaks, takes too long to open, or falls silent for too long although it is not paused, is opened
/// again: after the initial back-off, which doubles with each attempt up to its maximum. While it is paused nothing is
/// opened; one that broke meanwhile, or was paused for long, is opened afresh when it is resumed.
///
/// Pure: every call gets the time, counted from any fixed point, and never runs backwards.
class ReconnectPolicy {
public:
    using Time = std::chrono::milliseconds;

    struct Limits {
        /// From the request to the first sound.
        Time connectTimeout = std::chrono::seconds(20);
        Time stallTimeout = std::chrono::seconds(10);
        /// The same for a stream that was open before the machine slept, and may sound from what is left of it.
        Time stallTimeoutInDoubt = std::chrono::seconds(2);
        /// A stream that sounded for so long starts with the initial back-off again, and is in doubt no more.
        Time stableAfter = std::chrono::seconds(10);
        /// What was paused for longer is too old to be resumed.
        Time maxPause = std::chrono::seconds(20);
        Time initialBackoff = std::chrono::seconds(1);
        Time maxBackoff = std::chrono::seconds(30);
    };

    explicit ReconnectPolicy(const Limits& limits);

    enum class Action {
        Nothing,
        /// Open the stream again, now; `opened` is to follow.
        Open,
        /// The stream has been silent for too long: close it. It counts as broken from now on.
        GiveUp,
    };

    /// The stream has just been asked to open.
    void opened(Time now);
    void sounds(Time now);
    void isSilent(Time now);
    void broke(Time now);
    void paused(Time now);
    [[nodiscard]] Action resumed(Time now);

    /// The next attempt is made at once, and those after it wait shortly again; a stream that is open is in doubt. As
    /// when the machine has woken, or the network has come back.
    [[nodiscard]] Action reconnectNow(Time now);

    /// To be asked at `deadline`.
    [[nodiscard]] Action dueAction(Time now);
    /// When `dueAction` will have something to say; nothing when only another event can change that.
    [[nodiscard]] std::optional<Time> deadline() const;
    /// When the broken stream will be opened again; nothing while it is not broken, or paused.
    [[nodiscard]] std::optional<Time> nextAttempt() const;

private:
    enum class Phase { Opening, Sounding, Silent, Broken };

    Limits limits_;
    Phase phase_ = Phase::Opening;
    /// Since when the phase lasts, but not before the stream was last resumed.
    Time since_{0};
    Time nextAttempt_{0};
    Time delay_;
    std::optional<Time> pausedSince_;
    bool isInDoubt_ = false;
};

} // namespace sonavel
