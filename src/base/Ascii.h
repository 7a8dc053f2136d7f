// Blanks, letters and controls of ASCII, whatever else a text holds.
#pragma once

#include <string_view>

namespace sonavel {

[[nodiscard]] inline bool isAscii(char character)
{
    return static_cast<unsigned char>(character) < 0x80;
}
[[nodiscard]] bool isAscii(std::string_view text);

/// Whether it is one of the 33 control characters of ASCII.
[[nodiscard]] inline bool isAsciiControl(char character)
{
    return static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
}

/// The small letter of one from A to Z; any other byte as it is.
[[nodiscard]] inline char asciiLowerCase(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// Without blanks, tabs and line ends around.
[[nodiscard]] std::string_view withoutOuterBlanks(std::string_view text);

/// Whether the text is or begins so, letters from A to Z in upper or lower case.
[[nodiscard]] bool equalsIgnoringCase(std::string_view text, std::string_view other);
[[nodiscard]] bool beginsWithIgnoringCase(std::string_view text, std::string_view beginning);

} // namespace sonavel
