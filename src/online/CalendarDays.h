// The comparison of calendar days that times the checks.
#pragma once

#include "base/Moment.h"

#include <cstdint>
#include <optional>

namespace sonavel {

class Clock;

/// Whether `previousDay` falls on the same calendar day of the user as the moment that lies `dayOfDifference` times
/// 84,600 seconds (23 hours 30 minutes) before `actualDay`, or before now when that is absent. The product is a signed
/// 32-bit number and wraps around.
[[nodiscard]] bool dateComparisonWithPreviousDays(
    const Clock& clock, Moment previousDay, std::optional<Moment> actualDay, std::int32_t dayOfDifference);

} // namespace sonavel
