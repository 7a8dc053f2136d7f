#include "base/Moment.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

TEST(Moment, TheInternationalFormReadsBackAsTheSameSecond)
{
    for (const char* form : {"2016-10-01 00:00:00 +0000", "1970-01-01 00:00:00 +0000", "0001-01-01 00:00:00 +0000",
             "9999-12-31 23:59:59 +0000", "2024-02-29 12:34:56 +0000", "1969-12-31 23:59:59 +0000"}) {
        const auto moment = momentFromInternationalForm(form);
        ASSERT_TRUE(moment) << form;
        EXPECT_EQ(internationalForm(*moment), Text(form));
    }
    EXPECT_EQ(momentFromInternationalForm("2016-10-01 00:00:00 +0000")->microseconds, 1'475'280'000'000'000);
    EXPECT_EQ(internationalForm({-1}), Text("1969-12-31 23:59:59 +0000"));
}

TEST(Moment, AnOffsetIsTakenOff)
{
    for (const char* form : {"2016-10-01 02:00:00 +0200", "2016-10-01 23:59:00 +2359", "2016-09-30 20:15:00 -0345"})
        EXPECT_EQ(momentFromInternationalForm(form), momentFromInternationalForm("2016-10-01 00:00:00 +0000")) << form;
}

TEST(Moment, AnyOtherFormGivesNothing)
{
    for (const char* form : {"", "(null)", "2016-10-01", "2016-10-01 00:00:00", "2016-10-01T00:00:00 +0000",
             "2016-10-01 00:00:00 +0000 ", " 2016-10-01 00:00:00 +0000", "16-10-01 00:00:00 +0000",
             "2016-13-01 00:00:00 +0000", "2016-02-30 00:00:00 +0000", "2015-02-29 00:00:00 +0000",
             "2016-10-01 24:00:00 +0000", "2016-10-01 00:60:00 +0000", "2016-10-01 00:00:60 +0000",
             "0000-01-01 00:00:00 +0000", "2016-10-01 00:00:00 0000", "2016-10-01 00:00:00 +00:00",
             "2016-10-01 00:00:00 +2400", "2016-1a-01 00:00:00 +0000", "+016-10-01 00:00:00 +0000",
             "20161001 00:00:00 +0000", "2016-10-01 000000 +0000", "2016-10-01 00:00:00+0000",
             "2016-10-01 00:00:00 +0060", "2016-10-01 00:00:00 +000", "2016-10-01 00:00:00 +0a00"})
        EXPECT_FALSE(momentFromInternationalForm(form)) << form;
    EXPECT_FALSE(momentFromInternationalForm(Text()));
}

} // namespace
} // namespace sonavel
