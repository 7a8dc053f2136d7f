#include "online/CalendarDays.h"

#include "support/SettableClock.h"

#include <gtest/gtest.h>

#include <limits>

namespace sonavel {
namespace {

bool compare(const Clock& clock, const char* previous, const char* actual, std::int32_t difference)
{
    return dateComparisonWithPreviousDays(clock, momentFromInternationalForm(previous).value(),
        *actual == 0 ? std::nullopt : momentFromInternationalForm(actual), difference);
}

TEST(CalendarDays, ADayOfDifferenceIsTwentyThreeAndAHalfHours)
{
    struct Case {
        const char* previous;
        const char* actual;
        std::int32_t difference;
        bool isEqual;
    };
    SettableClock clock("2016-10-05 12:00:00 +0000");
    for (const Case& each : {Case{"2016-10-04 09:00:00 +0000", "2016-10-05 12:00:00 +0000", 1, true},
             Case{"2016-10-05 08:00:00 +0000", "2016-10-05 12:00:00 +0000", 1, false},
             Case{"2016-10-04 08:00:00 +0000", "2016-10-05 23:29:59 +0000", 1, true},
             Case{"2016-10-05 08:00:00 +0000", "2016-10-05 23:30:00 +0000", 1, true},
             Case{"2016-10-05 00:00:00 +0000", "2016-10-05 23:59:59 +0000", 0, true},
             Case{"2016-10-04 23:59:59 +0000", "2016-10-05 00:00:00 +0000", 0, false},
             Case{"2016-10-04 12:00:00 +0000", "", 1, true},
             Case{"2016-10-06 12:00:00 +0000", "2016-10-05 12:00:00 +0000", -1, true}})
        EXPECT_EQ(compare(clock, each.previous, each.actual, each.difference), each.isEqual)
            << each.previous << " " << each.actual << " " << each.difference;
}

TEST(CalendarDays, DaysAreThoseOfTheUsersZone)
{
    SettableClock clock("2016-10-05 12:00:00 +0000");
    clock.zoneOffset = std::chrono::hours(10);
    EXPECT_TRUE(compare(clock, "2016-10-04 15:00:00 +0000", "2016-10-05 13:00:00 +0000", 0));
    EXPECT_FALSE(compare(clock, "2016-10-05 13:00:00 +0000", "2016-10-05 15:00:00 +0000", 0));
}

TEST(CalendarDays, TheProductWrapsAroundAt32Bits)
{
    const SettableClock clock("2016-10-05 12:00:00 +0000");
    // 25,384 times 84,600 is 2,147,486,400, which wraps to 2,147,480,896 seconds ahead.
    EXPECT_TRUE(compare(clock, "2084-10-23 14:01:36 +0000", "2016-10-05 12:00:00 +0000", 25'384));
    // -2,147,483,648 times 84,600 wraps to nothing ahead.
    EXPECT_TRUE(compare(clock, "2016-10-05 12:00:00 +0000", "", std::numeric_limits<std::int32_t>::min()));
}

} // namespace
} // namespace sonavel
