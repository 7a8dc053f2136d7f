// Decides when a stream is opened again.
#pragma once

#include <chrono>
#include <optional>

namespace sonavel {

/// A stream that breaks, or stays silent for `silenceLimit` although it is not held, is opened again: after one second,
/// then after twice the time each, up to half a minute. A stream that has sounded for `provenAfter` starts at one
/// second again. While it is held nothing is opened; one that broke meanwhile, or was held for longer than
/// `staleAfter`, is opened afresh when it is continued.
///
/// Pure: the time is told with every call, counted from any fixed point, and never runs backwards.
class StreamSupervisor {
public:
    using Time = std::chrono::milliseconds;

    static constexpr Time silenceLimit = std::chrono::seconds(10);
    static constexpr Time provenAfter = std::chrono::seconds(10);
    static constexpr Time staleAfter = std::chrono::seconds(20);
    static constexpr Time shortestDelay = std::chrono::seconds(1);
    static constexpr Time longestDelay = std::chrono::seconds(30);

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

    /// The next attempt is made at once, and those after it wait shortly again; as when the network has come back.
    [[nodiscard]] Advice renew(Time now);

    /// To be asked at `deadline`.
    [[nodiscard]] Advice advice(Time now);
    /// When `advice` will have something to say; nothing when only another event can change that.
    [[nodiscard]] std::optional<Time> deadline() const;
    /// When the broken stream will be opened again; nothing while it is not broken, or held.
    [[nodiscard]] std::optional<Time> nextAttempt() const;

private:
    enum class Phase { Silent, Sounding, Broken };

    [[nodiscard]] bool isStale(Time now) const;

    Phase phase_ = Phase::Silent;
    /// Since when the phase lasts; while silent or sounding, not before the stream was last continued.
    Time since_{0};
    Time nextAttempt_{0};
    Time delay_ = shortestDelay;
    std::optional<Time> heldSince_;
};

} // namespace sonavel
