#include "storage/Base64.h"

#include "base/Ascii.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace sonavel {

namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// What stands in the decoding tables for a character that is no value: a bit above the 24 of a group.
constexpr std::uint32_t noValue = 1U << 24U;

/// The value of each character, shifted to its place in a group of four.
constexpr std::array<std::uint32_t, 256> decodingTable(unsigned shift)
{
    std::array<std::uint32_t, 256> table{};
    table.fill(noValue);
    for (std::size_t value = 0; value < alphabet.size(); ++value)
        table[static_cast<unsigned char>(alphabet[value])] = static_cast<std::uint32_t>(value) << shift;
    return table;
}

constexpr std::array<std::uint32_t, 256> firstValues = decodingTable(18);
constexpr std::array<std::uint32_t, 256> secondValues = decodingTable(12);
constexpr std::array<std::uint32_t, 256> thirdValues = decodingTable(6);
constexpr std::array<std::uint32_t, 256> fourthValues = decodingTable(0);

/// The two characters of every 12-bit value, so that three bytes take two look-ups.
constexpr std::array<std::array<char, 2>, 4096> encodingTable()
{
    std::array<std::array<char, 2>, 4096> table{};
    for (std::size_t value = 0; value < table.size(); ++value)
        table[value] = {alphabet[value >> 6U], alphabet[value & 63U]};
    return table;
}

constexpr std::array<std::array<char, 2>, 4096> characterPairs = encodingTable();

std::uint32_t byteAt(const char* bytes, std::size_t index)
{
    return static_cast<unsigned char>(bytes[index]);
}

/// Writes one group of four characters for the one to three bytes given; returns the end of what it wrote.
char* encodeGroup(const char* bytes, std::size_t count, char* out)
{
    std::uint32_t group = byteAt(bytes, 0) << 16U;
    group |= count > 1 ? byteAt(bytes, 1) << 8U : 0;
    group |= count > 2 ? byteAt(bytes, 2) : 0;
    out = std::copy_n(characterPairs[group >> 12U].data(), 2, out);
    out = std::copy_n(characterPairs[group & 4095U].data(), 2, out);
    std::fill_n(out - (3 - count), 3 - count, '=');
    return out;
}

char* writeGroupBytes(std::uint32_t group, std::size_t count, char* out)
{
    for (std::size_t index = 0; index < count; ++index)
        *out++ = static_cast<char>(group >> (16 - 8 * index));
    return out;
}

/// Decodes whole groups of four valid characters as long as there are any; moves `text` past them.
char* decodeWholeGroups(std::string_view& text, char* out)
{
    const char* in = text.data();
    const char* const end = in + text.size();
    for (; end - in >= 4; in += 4) {
        const std::uint32_t group = firstValues[byteAt(in, 0)] | secondValues[byteAt(in, 1)]
            | thirdValues[byteAt(in, 2)] | fourthValues[byteAt(in, 3)];
        if (group >= noValue)
            break;
        out = writeGroupBytes(group, 3, out);
    }
    text.remove_prefix(static_cast<std::size_t>(in - text.data()));
    return out;
}

enum class GroupEnd { Full, Pad, EndOfText, NotAscii };

struct Group {
    std::uint32_t values = 0;
    std::size_t count = 0;
    GroupEnd end = GroupEnd::EndOfText;
};

/// Collects the next group of four values among other characters; moves `text` past what it looked at.
Group takeGroup(std::string_view& text)
{
    Group group;
    while (!text.empty()) {
        const char character = text.front();
        text.remove_prefix(1);
        if (!isAscii(character))
            return {0, 0, GroupEnd::NotAscii};
        if (character == '=')
            return {group.values, group.count, isAscii(text) ? GroupEnd::Pad : GroupEnd::NotAscii};
        const std::uint32_t value = fourthValues[static_cast<unsigned char>(character)];
        if (value == noValue)
            continue;
        group.values |= value << (18 - 6 * group.count);
        if (++group.count == 4)
            return {group.values, 4, GroupEnd::Full};
    }
    return {group.values, group.count, GroupEnd::EndOfText};
}

} // namespace

std::string base64Encoded(std::string_view bytes, std::uint64_t lineLength)
{
    const std::size_t groups = (bytes.size() + 2) / 3;
    std::string text(lineLength == 0 ? groups * 4 : groups * 5, '\0');
    char* out = text.data();
    std::uint16_t lineCount = 0;
    while (!bytes.empty()) {
        const std::size_t count = std::min<std::size_t>(bytes.size(), 3);
        out = encodeGroup(bytes.data(), count, out);
        bytes.remove_prefix(count);
        lineCount = static_cast<std::uint16_t>(lineCount + 4);
        if (lineLength != 0 && lineCount >= lineLength) {
            *out++ = '\n';
            lineCount = 0;
        }
    }
    text.resize(static_cast<std::size_t>(out - text.data()));
    return text;
}

std::string base64Decoded(std::string_view text)
{
    std::string bytes(text.size() / 4 * 3 + 3, '\0');
    char* out = bytes.data();
    GroupEnd end = GroupEnd::Full;
    while (end == GroupEnd::Full) {
        out = decodeWholeGroups(text, out);
        const Group group = takeGroup(text);
        end = group.end;
        if (end == GroupEnd::NotAscii)
            return {};
        if (end == GroupEnd::Full || (end == GroupEnd::Pad && group.count > 0))
            out = writeGroupBytes(group.values, group.count - 1, out);
    }
    bytes.resize(static_cast<std::size_t>(out - bytes.data()));
    return bytes;
}

} // namespace sonavel
