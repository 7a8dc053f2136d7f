#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace sonavel {
namespace {

TEST(Numbers, TheLeadingIntegerCountsAndSaturates)
{
    using Limits = std::numeric_limits<std::int64_t>;
    const std::pair<const char*, std::int64_t> cases[] = {{"60", 60}, {" \t-7 apples", -7}, {"+3", 3}, {"007", 7},
        {"12.9", 12}, {"", 0}, {"-", 0}, {"+-1", 0}, {"x1", 0}, {"9223372036854775807", Limits::max()},
        {"9223372036854775808", Limits::max()}, {"-9223372036854775808", Limits::min()},
        {"-9223372036854775809", Limits::min()}, {"99999999999999999999999", Limits::max()},
        {"-99999999999999999999999", Limits::min()}};
    for (const auto& [text, number] : cases)
        EXPECT_EQ(integerValue(text), number) << text;
    EXPECT_EQ(integerValue(Text()), 0);
    EXPECT_EQ(decimalText(Limits::min()), Text("-9223372036854775808"));
}

TEST(Numbers, ADecimalNumberIsAlwaysFinite)
{
    const std::pair<const char*, double> cases[] = {{"0.500000", 0.5}, {" -1.25e2x", -125.0}, {"+.5", 0.5}, {"1.", 1.0},
        {"0,7", 0.0}, {"", 0.0}, {".", 0.0}, {"inf", 0.0}, {"-nan", 0.0}, {"infinity", 0.0}, {"0x10", 0.0},
        {"1e400", 0.0}, {"-1e400", 0.0}, {"1e-400", 0.0}, {"1e99999999999999999999", 0.0}};
    for (const auto& [text, number] : cases)
        EXPECT_EQ(doubleValue(text), number) << text;
    EXPECT_EQ(doubleValue(Text()), 0.0);
    EXPECT_EQ(floatValue("30.000000"), 30.0F);
    EXPECT_EQ(floatValue("1e39"), 0.0F);
    EXPECT_EQ(sixDecimalsText(0.7F), Text("0.700000"));
    EXPECT_EQ(sixDecimalsText(std::numeric_limits<double>::lowest()).length(), 317U);
}

TEST(Numbers, AFlagIsReadByItsFirstLetterOrDigit)
{
    for (const char* yes : {"YES", "yes", "true", "T", "1", "9x", " \t+001", "-2", "0Y"})
        EXPECT_TRUE(boolValue(yes)) << yes;
    for (const char* no : {"", "NO", "0", "000", "f", "+", "- 1", "(null)"})
        EXPECT_FALSE(boolValue(no)) << no;
    EXPECT_FALSE(boolValue(Text()));
}

} // namespace
} // namespace sonavel
