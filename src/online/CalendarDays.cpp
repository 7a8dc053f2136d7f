#include "online/CalendarDays.h"

#include "platform/Clock.h"

namespace sonavel {

namespace {

constexpr std::uint32_t secondsPerDayOfDifference = 84'600;

} // namespace

CalendarDays::CalendarDays(const Clock& clock)
    : clock_(clock)
{
}

bool CalendarDays::dateComparisonWithPreviousDays(
    Moment previousDay, std::optional<Moment> actualDay, std::int32_t dayOfDifference) const
{
    // Unsigned, because a signed product may not overflow.
    const auto shift =
        static_cast<std::int32_t>(static_cast<std::uint32_t>(dayOfDifference) * secondsPerDayOfDifference);
    const Moment shifted = actualDay.value_or(clock_.now()).advancedBySeconds(-static_cast<std::int64_t>(shift));
    return clock_.calendarDay(previousDay) == clock_.calendarDay(shifted);
}

} // namespace sonavel
