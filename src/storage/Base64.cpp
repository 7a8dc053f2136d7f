#include "storage/Base64.h"

#include "base/Ascii.h"

#include <openssl/evp.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace sonavel {

namespace {

/// The length of a line is counted in 16 bits.
constexpr std::uint64_t maxLineLength = 65'532;
constexpr std::size_t groupsAtOnce = std::size_t{1} << 20U;

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// Marks characters outside the alphabet in the decoding tables: a bit above the 24 of a group.
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

std::uint32_t byteAt(const char* bytes, std::size_t index)
{
    return static_cast<unsigned char>(bytes[index]);
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

/// Collects the next group of four values among other characters; moves `text` past what it has read.
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
    const bool hasLines = lineLength != 0 && lineLength <= maxLineLength;
    const std::size_t bytesAtOnce = 3 * (hasLines ? (lineLength + 3) / 4 : groupsAtOnce);
    std::string text(((bytes.size() + 2) / 3) * (hasLines ? 5 : 4) + 1, '\0'); // and the zero behind each piece
    char* out = text.data();
    while (!bytes.empty()) {
        const std::string_view piece = bytes.substr(0, bytesAtOnce);
        out += EVP_EncodeBlock(reinterpret_cast<unsigned char*>(out),
            reinterpret_cast<const unsigned char*>(piece.data()), static_cast<int>(piece.size()));
        bytes.remove_prefix(piece.size());
        if (hasLines && piece.size() + 3 > bytesAtOnce)
            *out++ = '\n';
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
