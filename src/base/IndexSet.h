// A set of row numbers, kept as ranges.
#pragma once

#include <compare>
#include <cstddef>
#include <initializer_list>
#include <vector>

namespace sonavel {

/// From `first` to before `end`.
struct IndexRange {
    std::size_t first = 0;
    std::size_t end = 0;

    friend bool operator==(const IndexRange&, const IndexRange&) = default;
};

/// Row numbers in ascending order. A contiguous range costs as much as a single row.
class IndexSet {
public:
    IndexSet() = default;
    IndexSet(std::initializer_list<std::size_t> indexes);

    /// Adds a range; an empty one adds nothing.
    void insert(IndexRange range);

    [[nodiscard]] bool isEmpty() const { return ranges_.empty(); }
    [[nodiscard]] std::size_t count() const;
    [[nodiscard]] bool contains(std::size_t index) const;
    /// The highest index; the set must not be empty.
    [[nodiscard]] std::size_t last() const { return ranges_.back().end - 1; }

    /// Ascending, not adjacent, none empty.
    [[nodiscard]] const std::vector<IndexRange>& ranges() const& { return ranges_; }
    void ranges() && = delete;

    /// The indexes that are in both sets.
    [[nodiscard]] IndexSet intersectedWith(const IndexSet& other) const;
    /// The indexes that are in this set and not in `other`.
    [[nodiscard]] IndexSet without(const IndexSet& other) const;
    /// The indexes below `count`.
    [[nodiscard]] IndexSet below(std::size_t count) const;

    friend bool operator==(const IndexSet&, const IndexSet&) = default;

private:
    std::vector<IndexRange> ranges_;
};

} // namespace sonavel
