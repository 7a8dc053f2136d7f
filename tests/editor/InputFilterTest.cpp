// What the edit sheet's fields let through.
#include "editor/InputFilter.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

TEST(InputFilter, FoldsBlanksCutsWholeCharactersAndDropsSemicolons)
{
    constexpr std::int32_t noLimit = -1;
    const struct {
        const char* typed;
        std::int32_t limit;
        const char* kept;
    } cases[] = {{"Jazz ", 60, "Jazz "}, {"a  b", 60, "a b"}, {"a   b", 60, "a  b"}, {"a    b", 60, "a  b"},
        {"a\u00A0\u00A0b", 60, "a\u00A0\u00A0b"}, {"a;b", 60, "ab"}, {";;;", 60, ""}, {"a ; b", 60, "a  b"},
        {"abcd", 4, "abcd"}, {"abcde", 4, "abcd"}, {"abcd;", 4, "abcd"}, {"a;bcd", 4, "abc"}, {"abc  d", 4, "abc "},
        {"abc\U0001F4FB", 5, "abc\U0001F4FB"}, {"abc\U0001F4FB", 4, "abc"}, {"\U0001F4FB\U0001F4FB", 2, "\U0001F4FB"},
        {"e\u0301e\u0301", 3, "e\u0301e"}, {"anything", 0, ""}, {"a;  b", noLimit, "a b"}, {"", 60, ""}};
    for (const auto& [typed, limit, kept] : cases)
        EXPECT_EQ(filteredInput(typed, limit), Text(kept)) << typed << " cut to " << limit;
    const std::string huge(100'000, 'x');
    EXPECT_EQ(filteredInput(huge, std::numeric_limits<std::int32_t>::min()).length(), huge.size());
    EXPECT_EQ(filteredInput(huge, 2048).length(), 2048U);
}

} // namespace
} // namespace sonavel
