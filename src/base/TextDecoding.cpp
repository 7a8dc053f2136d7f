#include "base/TextDecoding.h"

#include "base/Text.h"

#include <array>
#include <cstddef>

namespace sonavel {

namespace {

/// The characters of Windows-1252 from 0x80 to 0x9F; 0 where undefined.
constexpr std::array<char16_t, 32> windowsCharacters{0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6,
    0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017D, 0, 0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC,
    0x2122, 0x0161, 0x203A, 0x0153, 0, 0x017E, 0x0178};

char16_t windowsCharacter(unsigned char byte)
{
    return byte >= 0x80 && byte <= 0x9F ? windowsCharacters.at(byte - 0x80U) : byte;
}

/// All of these lie below U+10000 and none is a surrogate.
void appendUtf8(std::string& text, char16_t character)
{
    const auto byte = [](unsigned value) { return static_cast<char>(value); };
    if (character < 0x80) {
        text += byte(character);
    } else if (character < 0x800) {
        text += byte(0xC0U | (character >> 6U));
        text += byte(0x80U | (character & 0x3FU));
    } else {
        text += byte(0xE0U | (character >> 12U));
        text += byte(0x80U | ((character >> 6U) & 0x3FU));
        text += byte(0x80U | (character & 0x3FU));
    }
}

std::size_t characterSize(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    if (byte < 0x80)
        return 1;
    return byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

char32_t codePoint(std::string_view character)
{
    char32_t value = static_cast<unsigned char>(character.front());
    if (character.size() > 1)
        value &= 0x7FU >> character.size();
    for (const char next : character.substr(1))
        value = value << 6U | (static_cast<unsigned char>(next) & 0x3FU);
    return value;
}

/// Control characters, line separators and bidirectional controls.
bool isControl(char32_t character)
{
    const auto isWithin = [character](
                              char32_t first, char32_t last) { return character >= first && character <= last; };
    return character < 0x20 || isWithin(0x7F, 0x9F) || isWithin(0x2028, 0x202E) || isWithin(0x2066, 0x2069);
}

} // namespace

std::string decodeToUtf8(std::string_view bytes)
{
    if (isValidUtf8(bytes))
        return std::string(bytes);
    std::string text;
    for (const char character : bytes)
        if (const char16_t decoded = windowsCharacter(static_cast<unsigned char>(character)); decoded != 0)
            appendUtf8(text, decoded);
    return text;
}

std::string withoutControls(std::string_view utf8)
{
    std::string result;
    while (!utf8.empty()) {
        const std::string_view character = utf8.substr(0, characterSize(utf8.front()));
        result += isControl(codePoint(character)) ? " " : character;
        utf8.remove_prefix(character.size());
    }
    return result;
}

std::string_view withoutByteOrderMark(std::string_view bytes)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return bytes.starts_with(mark) ? bytes.substr(mark.size()) : bytes;
}

} // namespace sonavel
