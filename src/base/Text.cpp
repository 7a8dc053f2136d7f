#include "base/Text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace sonavel {

namespace {

constexpr std::uint64_t highBits = 0x8080808080808080U;

bool isContinuation(unsigned char byte)
{
    return (byte & 0xC0U) == 0x80U;
}

/// The length of the well-formed sequence at the head of `bytes`, 0 when there is none.
std::size_t sequenceLength(std::string_view bytes)
{
    const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(bytes[index]); };
    const unsigned char first = byte(0);
    if (first < 0x80)
        return 1;
    std::size_t length = 0;
    unsigned char lowest = 0x80;
    unsigned char highest = 0xBF;
    if (first >= 0xC2 && first <= 0xDF) {
        length = 2;
    } else if (first >= 0xE0 && first <= 0xEF) {
        length = 3;
        lowest = first == 0xE0 ? 0xA0 : 0x80;
        highest = first == 0xED ? 0x9F : 0xBF;
    } else if (first >= 0xF0 && first <= 0xF4) {
        length = 4;
        lowest = first == 0xF0 ? 0x90 : 0x80;
        highest = first == 0xF4 ? 0x8F : 0xBF;
    }
    if (length == 0 || bytes.size() < length || byte(1) < lowest || byte(1) > highest)
        return 0;
    for (std::size_t index = 2; index < length; ++index)
        if (!isContinuation(byte(index)))
            return 0;
    return length;
}

/// How many UTF-16 code units the character takes of which this is the first byte; 0 for a further one.
std::size_t unitsBegunBy(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    if (isContinuation(byte))
        return 0;
    return byte >= 0xF0 ? 2 : 1;
}

} // namespace

std::size_t Text::length() const
{
    std::size_t units = 0;
    for (const char character : view_)
        units += unitsBegunBy(character);
    return units;
}

Text Text::prefix(std::size_t length) const
{
    std::size_t bytes = 0;
    for (std::size_t units = 0; bytes < view_.size(); ++bytes) {
        units += unitsBegunBy(view_[bytes]);
        if (units > length)
            return slice(view_.substr(0, bytes));
    }
    return *this;
}

bool isValidUtf8(std::string_view bytes)
{
    while (!bytes.empty()) {
        std::uint64_t word = highBits;
        if (bytes.size() >= sizeof word)
            std::memcpy(&word, bytes.data(), sizeof word);
        if ((word & highBits) == 0) {
            bytes.remove_prefix(sizeof word);
            continue;
        }
        const std::size_t length = sequenceLength(bytes);
        if (length == 0)
            return false;
        bytes.remove_prefix(length);
    }
    return true;
}

char32_t takeCharacter(std::string_view& utf8)
{
    constexpr char32_t replacementCharacter = 0xFFFD;
    const std::size_t length = sequenceLength(utf8);
    const std::string_view following = utf8.substr(1, std::max<std::size_t>(length, 1) - 1);
    char32_t character = static_cast<unsigned char>(utf8.front());
    if (length > 1)
        character &= 0x7FU >> length;
    for (const char next : following)
        character = character << 6U | (static_cast<unsigned char>(next) & 0x3FU);
    utf8.remove_prefix(1 + following.size());
    return length == 0 ? replacementCharacter : character;
}

std::string_view utf8Prefix(std::string_view text, std::size_t maxBytes)
{
    if (text.size() <= maxBytes)
        return text;
    while (maxBytes > 0 && isContinuation(static_cast<unsigned char>(text[maxBytes])))
        --maxBytes;
    return text.substr(0, maxBytes);
}

} // namespace sonavel
