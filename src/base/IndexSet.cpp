#include "base/IndexSet.h"

#include <algorithm>
#include <limits>

namespace sonavel {

IndexSet::IndexSet(std::initializer_list<std::size_t> indexes)
{
    for (const std::size_t index : indexes)
        insert({index, index + 1});
}

void IndexSet::insert(IndexRange range)
{
    if (range.first >= range.end)
        return;
    // Merges all ranges that overlap or are adjacent to the new one.
    const auto from = std::lower_bound(ranges_.begin(), ranges_.end(), range.first,
        [](const IndexRange& present, std::size_t first) { return present.end < first; });
    auto to = from;
    for (; to != ranges_.end() && to->first <= range.end; ++to)
        range = {std::min(range.first, to->first), std::max(range.end, to->end)};
    ranges_.insert(ranges_.erase(from, to), range);
}

std::size_t IndexSet::count() const
{
    std::size_t count = 0;
    for (const IndexRange& range : ranges_)
        count += range.end - range.first;
    return count;
}

bool IndexSet::contains(std::size_t index) const
{
    const auto range = std::upper_bound(ranges_.begin(), ranges_.end(), index,
        [](std::size_t wanted, const IndexRange& present) { return wanted < present.end; });
    return range != ranges_.end() && range->first <= index;
}

IndexSet IndexSet::intersectedWith(const IndexSet& other) const
{
    IndexSet common;
    auto theirs = other.ranges_.begin();
    for (auto ours = ranges_.begin(); ours != ranges_.end() && theirs != other.ranges_.end();) {
        common.insert({std::max(ours->first, theirs->first), std::min(ours->end, theirs->end)});
        if (ours->end < theirs->end)
            ++ours;
        else
            ++theirs;
    }
    return common;
}

IndexSet IndexSet::without(const IndexSet& other) const
{
    IndexSet outside;
    std::size_t start = 0;
    for (const IndexRange& range : other.ranges_) {
        outside.insert({start, range.first});
        start = range.end;
    }
    outside.insert({start, std::numeric_limits<std::size_t>::max()});
    return intersectedWith(outside);
}

IndexSet IndexSet::below(std::size_t count) const
{
    if (isEmpty() || last() < count)
        return *this;
    IndexSet all;
    all.insert({0, count});
    return intersectedWith(all);
}

} // namespace sonavel
