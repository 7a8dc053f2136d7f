// A point in time, and its text form.
#pragma once

#include "base/Text.h"

#include <compare>
#include <cstdint>
#include <optional>

namespace sonavel {

/// A point in time, counted in microseconds from 1970-01-01 00:00:00 UTC. Years 0001 to 9999 can be written as text.
struct Moment {
    std::int64_t microseconds = 0;

    [[nodiscard]] static Moment fromSeconds(std::int64_t seconds) { return {seconds * 1'000'000}; }
    [[nodiscard]] Moment advancedBySeconds(std::int64_t seconds) const { return {microseconds + seconds * 1'000'000}; }

    // The rule takes the comparison's own 0 for a null pointer.
    // NOLINTNEXTLINE(modernize-use-nullptr)
    friend auto operator<=>(const Moment&, const Moment&) = default;
};

/// The international form in UTC, "2016-10-01 00:00:00 +0000"; fractions of a second are truncated.
[[nodiscard]] Text internationalForm(Moment moment);

/// Parses the international form with any offset from UTC. Another form, an impossible day, time or offset, or a year
/// outside 0001 to 9999 gives nothing.
[[nodiscard]] std::optional<Moment> momentFromInternationalForm(const Text& text);

} // namespace sonavel
