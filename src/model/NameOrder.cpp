#include "model/NameOrder.h"

#include "model/SortKeys.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <span>

namespace sonavel {

namespace {

/// A name's place, with the part of its key that is being looked at.
struct Entry {
    std::uint64_t word;
    std::size_t place;
};

/// Sorts by one word of the keys after the other: the names themselves are not looked at again, and most comparisons
/// are of two numbers that lie beside each other.
class KeySorter {
public:
    explicit KeySorter(const SortKeys& keys)
        : keys_(keys)
    {
    }

    void sort(std::span<Entry> entries, std::size_t offset = 0) const
    {
        if (offset == wordsEnd) {
            sortByRest(entries);
            return;
        }
        for (Entry& entry : entries)
            entry.word = keys_.wordAt(entry.place, offset);
        std::sort(entries.begin(), entries.end(), [](const Entry& left, const Entry& right) {
            return left.word != right.word ? left.word < right.word : left.place < right.place;
        });
        sortEqualOnes(entries, offset);
    }

private:
    /// From here on whole rests are compared, as words would recurse too deeply for hostile names.
    static constexpr std::size_t wordsEnd = 4 * SortKeys::wordSize;

    void sortEqualOnes(std::span<Entry> entries, std::size_t offset) const
    {
        while (!entries.empty()) {
            const std::uint64_t word = entries.front().word;
            const auto end =
                std::find_if(entries.begin(), entries.end(), [word](const Entry& entry) { return entry.word != word; });
            const auto count = static_cast<std::size_t>(end - entries.begin());
            if (count > 1 && !SortKeys::isLastWord(word))
                sort(entries.first(count), offset + SortKeys::wordSize);
            entries = entries.subspan(count);
        }
    }

    void sortByRest(std::span<Entry> entries) const
    {
        std::sort(entries.begin(), entries.end(), [this](const Entry& left, const Entry& right) {
            const auto order = keys_.restAt(left.place, wordsEnd) <=> keys_.restAt(right.place, wordsEnd);
            return std::is_neq(order) ? std::is_lt(order) : left.place < right.place;
        });
    }

    const SortKeys& keys_;
};

bool areInOrder(const std::vector<std::string_view>& names, const SortKeys& keys)
{
    for (std::size_t place = 1; place < names.size(); ++place) {
        if (keys.restAt(place, 0) < keys.restAt(place - 1, 0))
            return false;
    }
    return true;
}

} // namespace

std::vector<std::size_t> orderOfNames(const std::vector<std::string_view>& names)
{
    const SortKeys keys(names);
    std::vector<std::size_t> places(names.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    // A list is mostly read in the order in which it was written, and looking costs far less than sorting.
    if (areInOrder(names, keys))
        return places;

    std::vector<Entry> entries(names.size());
    for (std::size_t place = 0; place < entries.size(); ++place)
        entries[place].place = place;
    KeySorter(keys).sort(entries);
    std::transform(entries.begin(), entries.end(), places.begin(), [](const Entry& entry) { return entry.place; });
    return places;
}

} // namespace sonavel
