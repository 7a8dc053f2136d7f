#include "adapters/SystemClock.h"

#include <ctime>

namespace sonavel {

Moment SystemClock::now() const
{
    using namespace std::chrono;
    return {duration_cast<microseconds>(system_clock::now().time_since_epoch()).count()};
}

std::chrono::year_month_day SystemClock::calendarDay(Moment moment) const
{
    using namespace std::chrono;
    const std::time_t seconds = floor<std::chrono::seconds>(microseconds(moment.microseconds)).count();
    std::tm local{};
    localtime_r(&seconds, &local);
    return {year(local.tm_year + 1900), month(static_cast<unsigned>(local.tm_mon + 1)),
        day(static_cast<unsigned>(local.tm_mday))};
}

} // namespace sonavel
