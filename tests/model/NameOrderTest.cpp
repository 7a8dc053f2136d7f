#include "model/NameOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace sonavel {
namespace {

TEST(NameOrder, NamesComeByCharacterAndDigitsByValue)
{
    using namespace std::string_view_literals;
    const std::string manyDigits(70'000, '7');
    const std::string moreDigits = manyDigits + "0";
    // Each name comes before the next.
    const std::vector<std::string_view> ascending = {""sv, "\0"sv, "\0\0"sv, "\0\1"sv, "\1"sv, "\1\0"sv, "!"sv, "/"sv,
        "0"sv, "0/"sv, "1"sv, "2"sv, "10"sv, "10 A"sv, "010 B"sv, "99999999"sv, "123456789"sv, "1234567890"sv,
        "18446744073709551615"sv, "18446744073709551616"sv, "36893488147419103232"sv, manyDigits, moreDigits, ":"sv,
        "A"sv, "Radio"sv, "Radio "sv, "Radio -1"sv, "Radio 2"sv, "Radio 02a"sv, "Radio 10"sv, "Radio X"sv,
        "Station of the same long beginning 1"sv, "Station of the same long beginning 2"sv,
        "Station of the same long beginning 2 and more"sv, "Zoo"sv, "alpha"sv, "radio 1"sv, "~"sv, "Ärger"sv, "ä"sv,
        "Євро"sv, "€"sv, "\uFFFD"sv, "📻"sv};
    for (std::size_t left = 0; left < ascending.size(); ++left)
        for (std::size_t right = left + 1; right < ascending.size(); ++right)
            EXPECT_EQ(orderOfNames({ascending[right], ascending[left]}), (std::vector<std::size_t>{1, 0}))
                << ascending[left].substr(0, 40) << " against " << ascending[right].substr(0, 40);

    std::vector<std::string_view> shuffled = ascending;
    std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(1));
    std::vector<std::string_view> sorted;
    for (const std::size_t place : orderOfNames(shuffled))
        sorted.push_back(shuffled[place]);
    EXPECT_EQ(sorted, ascending);
}

TEST(NameOrder, LeadingZerosDoNotCountAndEquivalentNamesKeepTheirOrder)
{
    EXPECT_EQ(orderOfNames({"Radio 007", "Radio 7", "Radio 007"}), (std::vector<std::size_t>{0, 1, 2}));
    EXPECT_EQ(orderOfNames({"00", "0", "000"}), (std::vector<std::size_t>{0, 1, 2}));
    EXPECT_EQ(orderOfNames({"007b09", "7b8"}), (std::vector<std::size_t>{1, 0}));
    EXPECT_EQ(orderOfNames({"B", "A 01", "A 1", "B", "A 001", "A 0"}), (std::vector<std::size_t>{5, 1, 2, 4, 0, 3}));
}

TEST(NameOrder, HugeEqualBeginningsDoNotExhaustTheStack)
{
    const std::string long1(4'000'000, 'x');
    const std::string long2 = long1 + "1";
    EXPECT_EQ(orderOfNames({long2, long1, long2, long1}), (std::vector<std::size_t>{1, 3, 0, 2}));
}

} // namespace
} // namespace sonavel
