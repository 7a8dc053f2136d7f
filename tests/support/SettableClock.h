// A clock that the test sets.
#pragma once

#include "platform/Clock.h"

#include <stdexcept>

namespace sonavel {

class SettableClock : public Clock {
public:
    /// In the international form.
    explicit SettableClock(const Text& moment) { set(moment); }

    void set(const Text& moment) { moment_ = momentFromInternationalForm(moment).value(); }

    /// The sub-second part that `now` has.
    std::int64_t microsecond = 0;
    /// How far the user's time zone is ahead of UTC.
    std::chrono::seconds zoneOffset{0};

    [[nodiscard]] Moment now() const override { return {moment_.microseconds + microsecond}; }

    [[nodiscard]] std::chrono::year_month_day calendarDay(Moment moment) const override
    {
        using namespace std::chrono;
        return year_month_day(floor<days>(sys_time<microseconds>(microseconds(moment.microseconds)) + zoneOffset));
    }

private:
    Moment moment_;
};

} // namespace sonavel
