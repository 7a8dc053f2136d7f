// Sets of rows against the plain sets that they stand for.
#include "base/IndexSet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <set>

namespace sonavel {
namespace {

using Rows = std::set<std::size_t>;

Rows rowsOf(const IndexSet& set)
{
    Rows rows;
    std::size_t end = 0;
    for (const IndexRange& range : set.ranges()) {
        EXPECT_TRUE(rows.empty() || range.first > end) << "ranges touch";
        end = range.end;
        for (std::size_t row = range.first; row < range.end; ++row)
            rows.insert(row);
    }
    return rows;
}

TEST(IndexSet, HoldsWhatAPlainSetHoldsWhateverIsInsertedCutAndTakenAway)
{
    std::mt19937 random(7);
    const auto below = [&](std::size_t end) { return random() % end; };
    for (int round = 0; round < 500; ++round) {
        IndexSet sets[2];
        Rows rows[2];
        for (int i = 0; i < 2; ++i)
            for (std::size_t n = below(12); n > 0; --n) {
                const std::size_t first = below(40);
                const std::size_t end = first + below(6);
                sets[i].insert({first, end});
                for (std::size_t row = first; row < end; ++row)
                    rows[i].insert(row);
            }
        ASSERT_EQ(rowsOf(sets[0]), rows[0]);
        EXPECT_EQ(sets[0].count(), rows[0].size());
        for (std::size_t row = 0; row < 46; ++row)
            EXPECT_EQ(sets[0].contains(row), rows[0].contains(row));
        Rows common;
        Rows rest;
        std::set_intersection(
            rows[0].begin(), rows[0].end(), rows[1].begin(), rows[1].end(), std::inserter(common, common.end()));
        std::set_difference(
            rows[0].begin(), rows[0].end(), rows[1].begin(), rows[1].end(), std::inserter(rest, rest.end()));
        EXPECT_EQ(rowsOf(sets[0].intersectedWith(sets[1])), common);
        EXPECT_EQ(rowsOf(sets[0].without(sets[1])), rest);
        const std::size_t limit = below(45);
        EXPECT_EQ(rowsOf(sets[0].below(limit)), Rows(rows[0].begin(), rows[0].lower_bound(limit)));
    }
}

} // namespace
} // namespace sonavel
