#include "base/Text.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

TEST(Text, AnAbsentTextIsNotTheEmptyOne)
{
    EXPECT_TRUE(Text().isAbsent());
    EXPECT_FALSE(Text("").isAbsent());
    EXPECT_NE(Text(), Text(""));
    EXPECT_EQ(Text(), Text());
}

TEST(Text, ASliceOutlivesTheTextThatItWasCutFrom)
{
    Text name;
    {
        const Text line("a name long enough not to lie inside the string object;and an address");
        name = line.slice(line.view().substr(0, 50));
    }
    EXPECT_EQ(name, Text("a name long enough not to lie inside the string ob"));
    const Text copy = name;
    EXPECT_TRUE(copy.isSameObject(name));
    EXPECT_FALSE(Text(name.string()).isSameObject(name));
}

TEST(Text, LengthCountsUtf16Units)
{
    EXPECT_EQ(Text("Zürich").length(), 6U);
    EXPECT_EQ(Text("€").length(), 1U);
    EXPECT_EQ(Text("a📻b").length(), 4U);
    EXPECT_EQ(Text().length(), 0U);
}

TEST(Text, Utf8IsJudgedStrictly)
{
    const std::string padding = "0123456789";
    for (const char* valid : {"", "plain", "Zürich", "€", "📻", "\xED\x9F\xBF", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_TRUE(isValidUtf8(valid)) << valid;
        EXPECT_TRUE(isValidUtf8(padding + valid + padding)) << valid;
    }
    for (const char* invalid : {"\x80", "\xC0\xAF", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
             "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\xC3", "\xE2\x82", "\xE2\x82(", "\xF0\x9F\x93"}) {
        EXPECT_FALSE(isValidUtf8(invalid));
        EXPECT_FALSE(isValidUtf8(padding + invalid));
        EXPECT_FALSE(isValidUtf8(padding + invalid + padding));
    }
}

} // namespace
} // namespace sonavel
