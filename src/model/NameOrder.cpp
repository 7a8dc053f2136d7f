#include "model/NameOrder.h"

#include "base/Numbers.h"
#include "model/NameKeys.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace sonavel {

namespace {

std::weak_ordering compareNumbers(std::string_view left, std::string_view right)
{
    if (left.size() != right.size())
        return left.size() <=> right.size();
    return left <=> right;
}

/// A name's place, with the part of its key that is being looked at.
struct Entry {
    std::uint64_t word;
    std::size_t place;
};

/// Sorts by one word of the keys after the other: the names themselves are not looked at again, and most comparisons
/// are of two numbers that lie beside each other.
class KeySorter {
public:
    explicit KeySorter(const NameKeys& keys)
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
    static constexpr std::size_t wordsEnd = 4 * NameKeys::wordSize;

    void sortEqualOnes(std::span<Entry> entries, std::size_t offset) const
    {
        while (!entries.empty()) {
            const std::uint64_t word = entries.front().word;
            const auto end =
                std::find_if(entries.begin(), entries.end(), [word](const Entry& entry) { return entry.word != word; });
            const auto count = static_cast<std::size_t>(end - entries.begin());
            if (count > 1 && !NameKeys::isLastWord(word))
                sort(entries.first(count), offset + NameKeys::wordSize);
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

    const NameKeys& keys_;
};

} // namespace

std::weak_ordering compareNames(std::string_view left, std::string_view right)
{
    while (!left.empty() && !right.empty()) {
        if (isDigit(left.front()) && isDigit(right.front())) {
            const std::string_view leftNumber = takeNumber(left);
            if (const auto order = compareNumbers(leftNumber, takeNumber(right)); std::is_neq(order))
                return order;
            continue;
        }
        // The byte order of UTF-8 is the order of the Unicode values.
        if (left.front() != right.front())
            return static_cast<unsigned char>(left.front()) <=> static_cast<unsigned char>(right.front());
        left.remove_prefix(1);
        right.remove_prefix(1);
    }
    return left.size() <=> right.size();
}

std::vector<std::size_t> orderOfNames(const std::vector<std::string_view>& names)
{
    const NameKeys keys(names);
    std::vector<Entry> entries(names.size());
    for (std::size_t place = 0; place < entries.size(); ++place)
        entries[place].place = place;
    KeySorter(keys).sort(entries);

    std::vector<std::size_t> places(entries.size());
    std::transform(entries.begin(), entries.end(), places.begin(), [](const Entry& entry) { return entry.place; });
    return places;
}

} // namespace sonavel
