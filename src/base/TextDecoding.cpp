#include "base/TextDecoding.h"

#include "base/Text.h"

#include <array>

namespace sonavel {

namespace {

/// The characters of Windows-1252 from 0x80 to 0x9F; empty where undefined.
constexpr std::array<std::string_view, 32> windowsCharacters{"€", "", "‚", "ƒ", "„", "…", "†", "‡", "ˆ", "‰", "Š", "‹",
    "Œ", "", "Ž", "", "", "‘", "’", "“", "”", "•", "–", "—", "˜", "™", "š", "›", "œ", "", "ž", "Ÿ"};

void appendWindowsCharacter(std::string& text, unsigned char byte)
{
    if (byte < 0x80)
        text += static_cast<char>(byte);
    else if (byte < 0xA0)
        text += windowsCharacters.at(byte - 0x80U);
    else // as in Latin-1
        text.append({static_cast<char>(0xC0U | byte >> 6U), static_cast<char>(0x80U | (byte & 0x3FU))});
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
        appendWindowsCharacter(text, static_cast<unsigned char>(character));
    return text;
}

std::string withoutControls(std::string_view utf8)
{
    std::string result;
    while (!utf8.empty()) {
        const std::string_view rest = utf8;
        const bool isReplaced = isControl(takeCharacter(utf8));
        result += isReplaced ? " " : rest.substr(0, rest.size() - utf8.size());
    }
    return result;
}

std::string_view withoutByteOrderMark(std::string_view bytes)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return bytes.starts_with(mark) ? bytes.substr(mark.size()) : bytes;
}

} // namespace sonavel
