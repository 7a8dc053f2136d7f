#include "model/NameKeys.h"

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

/// Every other byte stands for itself in a key.
bool needsOtherForm(char character)
{
    return isDigit(character) || character == '\0' || character == '\1';
}

} // namespace

NameKeys::NameKeys(const std::vector<std::string_view>& names)
{
    const std::size_t length = std::accumulate(names.begin(), names.end(), std::size_t{0},
        [](std::size_t sum, std::string_view name) { return sum + name.size(); });
    bytes_.reserve(length + length / 8);
    ends_.reserve(names.size());
    for (const std::string_view name : names)
        append(name);
}

std::uint64_t NameKeys::wordAt(std::size_t place, std::size_t offset) const
{
    const std::string_view rest = restAt(place, offset);
    std::uint64_t word = 0;
    std::memcpy(&word, rest.data(), std::min(rest.size(), wordSize));
    if constexpr (std::endian::native == std::endian::little)
        word = __builtin_bswap64(word);
    return word;
}

std::string_view NameKeys::restAt(std::size_t place, std::size_t offset) const
{
    const std::size_t start = place == 0 ? 0 : ends_[place - 1];
    const std::string_view key = std::string_view(bytes_).substr(start, ends_[place] - start);
    return key.substr(std::min(offset, key.size()));
}

void NameKeys::append(std::string_view name)
{
    while (!name.empty()) {
        const auto* const special = std::find_if(name.begin(), name.end(), needsOtherForm);
        const auto plain = static_cast<std::size_t>(special - name.begin());
        bytes_ += name.substr(0, plain);
        name.remove_prefix(plain);
        if (name.empty())
            break;
        if (isDigit(name.front())) {
            appendNumber(takeNumber(name));
        } else {
            appendLowest(name.front());
            name.remove_prefix(1);
        }
    }
    ends_.push_back(bytes_.size());
}

/// How many digits there are, then the digits: so more digits make a greater number. The count is itself written in
/// digits, nine at a time, so that beside any other byte a number keeps the place that its digits have.
void NameKeys::appendNumber(std::string_view digits)
{
    bytes_.append(digits.size() / 9, '9');
    bytes_ += static_cast<char>('0' + digits.size() % 9);
    bytes_ += digits;
}

/// The bytes 0 and 1 become two bytes, as no key has a zero.
void NameKeys::appendLowest(char character)
{
    bytes_ += '\1';
    bytes_ += static_cast<char>(character + 1);
}

} // namespace sonavel
