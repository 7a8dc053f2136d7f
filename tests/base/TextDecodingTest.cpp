// Bytes from elsewhere as text.
#include "base/TextDecoding.h"

#include <gtest/gtest.h>

#include <utility>

namespace sonavel {
namespace {

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
