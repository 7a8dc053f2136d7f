#include "model/SortKeys.h"

#include "base/Numbers.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <numeric>

namespace sonavel {

namespace {

/// Cuts the digits at the head of `name` off and returns them without leading zeros; none remain of the number 0.
std::string_view takeNumber(std::string_view& name)
{
    std::string_view digits = name.substr(0, name.find_first_not_of("0123456789"));
    name.remove_prefix(digits.size());
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

/// How many digits there are, then the digits: so more digits make a greater number. The count is itself written in
/// digits, nine at a time, so that beside any other byte a number keeps the place that its digits have.
char* writeNumber(std::string_view digits, char* end)
{
    end = std::fill_n(end, digits.size() / 9, '9');
    *end++ = static_cast<char>('0' + digits.size() % 9);
    return std::copy(digits.begin(), digits.end(), end);
}

/// Writes the key of a name, at most two bytes for each of its own, and returns where it ends.
char* writeKey(std::string_view name, char* end)
{
    while (!name.empty()) {
        const char character = name.front();
        if (isDigit(character)) {
            end = writeNumber(takeNumber(name), end);
            continue;
        }
        name.remove_prefix(1);
        if (character == '\0' || character == '\1') {
            // Two bytes, as no key has a zero.
            *end++ = '\1';
            *end++ = static_cast<char>(character + 1);
        } else {
            *end++ = character;
        }
    }
    return end;
}

} // namespace

SortKeys::SortKeys(const std::vector<std::string_view>& names)
{
    const std::size_t length = std::accumulate(names.begin(), names.end(), std::size_t{0},
        [](std::size_t sum, std::string_view name) { return sum + name.size(); });
    bytes_ = std::make_unique_for_overwrite<char[]>(2 * length); // NOLINT(*-avoid-c-arrays)
    ends_.reserve(names.size());
    char* end = bytes_.get();
    for (const std::string_view name : names) {
        end = writeKey(name, end);
        ends_.push_back(static_cast<std::size_t>(end - bytes_.get()));
    }
}

std::uint64_t SortKeys::wordAt(std::size_t place, std::size_t offset) const
{
    const std::string_view rest = restAt(place, offset);
    std::uint64_t word = 0;
    std::memcpy(&word, rest.data(), std::min(rest.size(), wordSize));
    if constexpr (std::endian::native == std::endian::little)
        word = __builtin_bswap64(word);
    return word;
}

std::string_view SortKeys::restAt(std::size_t place, std::size_t offset) const
{
    const std::size_t start = place == 0 ? 0 : ends_[place - 1];
    const std::string_view key = std::string_view(bytes_.get() + start, ends_[place] - start);
    return key.substr(std::min(offset, key.size()));
}

} // namespace sonavel
