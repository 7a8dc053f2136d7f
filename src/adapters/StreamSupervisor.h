// Decides when a stream is opened again.
#pragma once

#include <chrono>
#include <optional>

namespace sonavel {

/// A stream that breaks, takes too long to open, or falls silent for too long although it is not held, is opened again:
/// after the shortest delay, then after twice the time each, up to the longest. While it is held nothing is opened; one
/// that broke meanwhile, or was held for long, is opened afresh when it is continued.
///
/// Pure: the time is told with every call, counted from any fixed point, and never runs backwards.
class StreamSupervisor {
public:
    using Time = std::chrono::milliseconds;

    struct Limits {
        /// From the request to the first sound.
        Time opening = std::chrono::seconds(20);
        Time silence = std::chrono::seconds(10);
        /// The same for a stream that was open before the machine slept, and may sound from what is left of it.
        Time silenceInDoubt = std::chrono::seconds(2);
        /// A stream that sounded for so long starts with the shortest delay again, and is in doubt no more.
        Time proven = std::chrono::seconds(10);
        /// What was held for longer is too old to go on with.
        Time hold = std::chrono::seconds(20);
        Time shortestDelay = std::chrono::seconds(1);
        Time longestDelay = std::chrono::seconds(30);
    };

    explicit StreamSupervisor(const Limits& limits);

    enum class Advice {
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
    void held(Time now);
    [[nodiscard]] Advice continued(Time now);

    /// The next attempt is made at once, and those after it wait shortly again; a stream that is open is in doubt. As
    /// when the machine has woken, or the network has come back.
    [[nodiscard]] Advice renew(Time now);

    /// To be asked at `deadline`.
    [[nodiscard]] Advice advice(Time now);
    /// When `advice` will have something to say; nothing when only another event can change that.
    [[nodiscard]] std::optional<Time> deadline() const;
    /// When the broken stream will be opened again; nothing while it is not broken, or held.
    [[nodiscard]] std::optional<Time> nextAttempt() const;

private:
    enum class Phase { Opening, Sounding, Silent, Broken };

    Limits limits_;
    Phase phase_ = Phase::Opening;
    /// Since when the phase lasts, but not before the stream was last continued.
    Time since_{0};
    Time nextAttempt_{0};
    Time delay_;
    std::optional<Time> heldSince_;
    bool isInDoubt_ = false;
};

} // namespace sonavel
