// The machine's clock and the user's time zone.
#pragma once

#include "platform/Clock.h"

namespace sonavel {

class SystemClock : public Clock {
public:
    [[nodiscard]] Moment now() const override;
    [[nodiscard]] std::chrono::year_month_day calendarDay(Moment moment) const override;
};

} // namespace sonavel
