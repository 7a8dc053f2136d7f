#include "adapters/SystemClock.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <tuple>

namespace sonavel {
namespace {

using namespace std::chrono_literals;

TEST(SystemClock, ADayBeginsAtMidnightOfTheUsersTimeZone)
{
    constexpr const char* india = "<+0530>-5:30";
    constexpr const char* newfoundland = "<-0330>3:30";
    constexpr const char* centralEurope = "CET-1CEST,M3.5.0,M10.5.0/3";
    const std::tuple<const char*, const char*, std::chrono::year_month_day> rows[] = {
        {"UTC0", "2016-09-30 23:59:59 +0000", 2016y / 10 / 1}, {"UTC0", "1969-12-31 23:59:59 +0000", 1970y / 1 / 1},
        {india, "2016-10-01 18:29:59 +0000", 2016y / 10 / 2},
        {newfoundland, "2016-10-02 03:29:59 +0000", 2016y / 10 / 2},
        // The days on which the clocks change have 23 and 25 hours.
        {centralEurope, "2016-03-26 22:59:59 +0000", 2016y / 3 / 27},
        {centralEurope, "2016-03-27 21:59:59 +0000", 2016y / 3 / 28},
        {centralEurope, "2016-10-29 21:59:59 +0000", 2016y / 10 / 30},
        {centralEurope, "2016-10-30 22:59:59 +0000", 2016y / 10 / 31}};
    for (const auto& [zone, lastSecond, day] : rows) {
        ::setenv("TZ", zone, 1);
        ::tzset();
        const SystemClock clock;
        const Moment before = momentFromInternationalForm(lastSecond).value();
        const std::chrono::year_month_day dayBefore = std::chrono::sys_days(day) - std::chrono::days(1);
        EXPECT_EQ(clock.calendarDay(before), dayBefore) << lastSecond;
        EXPECT_EQ(clock.calendarDay({before.microseconds + 999'999}), dayBefore) << lastSecond;
        EXPECT_EQ(clock.calendarDay(before.advancedBySeconds(1)), day) << lastSecond;
    }
    ::unsetenv("TZ");
    ::tzset();
}

TEST(SystemClock, NowIsTheTimeOfTheMachineToTheHourAtLeast)
{
    const Moment earliest = Moment::fromSeconds(std::time(nullptr) - 3600);
    const Moment now = SystemClock().now();
    EXPECT_TRUE(earliest <= now && now <= Moment::fromSeconds(std::time(nullptr) + 3600));
}

} // namespace
} // namespace sonavel
