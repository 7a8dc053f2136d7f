// The time, and the user's calendar.
#pragma once

#include "base/Moment.h"
#include "base/NonCopyable.h"

#include <chrono>

namespace sonavel {

class Clock : private NonCopyable {
public:
    virtual ~Clock() = default;

    [[nodiscard]] virtual Moment now() const = 0;

    /// The day on which a moment falls in the user's time zone.
    [[nodiscard]] virtual std::chrono::year_month_day calendarDay(Moment moment) const = 0;
};

} // namespace sonavel
