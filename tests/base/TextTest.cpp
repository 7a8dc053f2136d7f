#include "base/Text.h"

#include "base/TextDecoding.h"

#include <gtest/gtest.h>

#include <utility>

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

TEST(TextDecoding, BytesThatAreNotUtf8AreReadAsWindowsCharacters)
{
    const std::pair<const char*, const char*> cases[] = {{"\xE4", "ä"}, {"\xA0\xFF", "\xC2\xA0ÿ"},
        {"\x83\x98\x9F", "ƒ˜Ÿ"}, {"\x80\x96\x99", "€–™"}, {"A\x81\x8D\x8F\x90\x9DZ", "AZ"}, {"ä\xE4", "Ã¤ä"}};
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(decodeToUtf8(bytes), text);
}

TEST(TextDecoding, AControlIsABlankAndWhatStandsBesideItStaysWhole)
{
    // The first and the last character of each size, with what would be taken for a control if it were cut elsewhere.
    for (const std::string character : {"\x20", "\x7E", "\xC2\xA0", "\xDF\xBF", "\xE0\xA0\x80", "\xEF\xBF\xBF",
             "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_EQ(withoutControls("\n" + character + "\n" + character + "A"), " " + character + " " + character + "A");
    for (const char* control : {"\x01", "\x1F", "\x7F", "\xC2\x80", "\xC2\x9F", "\u2028", "\u202E", "\u2066", "\u2069"})
        EXPECT_EQ(withoutControls(control), " ");
    EXPECT_EQ(withoutControls("\u2027\u202F\u2065\u206A"), "\u2027\u202F\u2065\u206A");
}

} // namespace
} // namespace sonavel
