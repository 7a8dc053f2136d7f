#include "online/CalendarDays.h"

#include "platform/Clock.h"

namespace sonavel {

namespace {

constexpr std::uint32_t secondsPerDayOfDifference = 84'600;

} // namespace

bool dateComparisonWithPreviousDays(
    const Clock& clock, Moment previousDay, std::optional<Moment> actualDay, std::int32_t dayOfDifference)
{
    // Unsigned, because a signed product may not overflow.
    const auto shift =
        static_cast<std::int32_t>(static_cast<std::uint32_t>(dayOfDifference) * secondsPerDayOfDifference);
    const Moment shifted = actualDay.value_or(clock.now()).advancedBySeconds(-static_cast<std::int64_t>(shift));
    return clock.calendarDay(previousDay) == clock.calendarDay(shifted);
}

} // namespace sonavel
