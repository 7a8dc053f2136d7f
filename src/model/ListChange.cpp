#include "model/ListChange.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace sonavel {

ListChange ListChange::added(const StationRecords& list, StationRecords records)
{
    ListChange change;
    change.splices_.push_back({list.size(), {}, std::move(records)});
    return change;
}

ListChange ListChange::changed(const StationRecords& list, std::size_t position, StationRecord record)
{
    ListChange change;
    change.splices_.push_back({position, {list.at(position)}, {std::move(record)}});
    return change;
}

ListChange ListChange::removed(const StationRecords& list, const IndexSet& positions)
{
    const auto at = [&list](std::size_t position) { return list.begin() + static_cast<std::ptrdiff_t>(position); };
    ListChange change;
    for (const IndexRange& range : positions.ranges())
        change.splices_.push_back({range.first, {at(range.first), at(range.end)}, {}});
    return change;
}

ListChange ListChange::replaced(const StationRecords& list, const StationRecords& records)
{
    const auto [first, newFirst] = std::mismatch(list.begin(), list.end(), records.begin(), records.end());
    const auto [last, newLast] = std::mismatch(
        list.rbegin(), std::make_reverse_iterator(first), records.rbegin(), std::make_reverse_iterator(newFirst));
    const StationRecords removed(first, last.base());
    const StationRecords inserted(newFirst, newLast.base());
    const auto position = static_cast<std::size_t>(first - list.begin());

    ListChange change;
    const bool isOneMoved = removed.size() == inserted.size() && removed.size() > 1;
    if (isOneMoved && std::equal(removed.begin() + 1, removed.end(), inserted.begin()))
        change.splices_ = {{position, {removed.front()}, {}}, {position + removed.size(), {}, {inserted.back()}}};
    else if (isOneMoved && std::equal(inserted.begin() + 1, inserted.end(), removed.begin()))
        change.splices_ = {{position, {}, {inserted.front()}}, {position + removed.size() - 1, {removed.back()}, {}}};
    else if (!removed.empty() || !inserted.empty())
        change.splices_ = {{position, removed, inserted}};
    return change;
}

ListChange ListChange::inverse() const
{
    ListChange inverse;
    std::size_t added = 0;
    std::size_t dropped = 0;
    for (const Splice& splice : splices_) {
        inverse.splices_.push_back({splice.position + added - dropped, splice.inserted, splice.removed});
        added += splice.inserted.size();
        dropped += splice.removed.size();
    }
    return inverse;
}

void ListChange::applyTo(StationRecords& list) const
{
    StationRecords result;
    std::size_t size = list.size();
    for (const Splice& splice : splices_)
        size = size + splice.inserted.size() - splice.removed.size();
    result.reserve(size);
    auto next = list.begin();
    for (const Splice& splice : splices_) {
        const auto place = list.begin() + static_cast<std::ptrdiff_t>(splice.position);
        result.insert(result.end(), std::move_iterator(next), std::move_iterator(place));
        result.insert(result.end(), splice.inserted.begin(), splice.inserted.end());
        next = place + static_cast<std::ptrdiff_t>(splice.removed.size());
    }
    result.insert(result.end(), std::move_iterator(next), std::move_iterator(list.end()));
    list = std::move(result);
}

} // namespace sonavel
