// Character classes and case of ASCII, in texts of any encoding that contains it.
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

/// Lower case for A to Z; any other byte unchanged.
[[nodiscard]] inline char asciiLowerCase(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// Without leading and trailing blanks, tabs and line ends.
[[nodiscard]] std::string_view withoutOuterBlanks(std::string_view text);

// These ignore the case of A to Z.
[[nodiscard]] bool equalsIgnoringCase(std::string_view text, std::string_view other);
[[nodiscard]] bool beginsWithIgnoringCase(std::string_view text, std::string_view beginning);

} // namespace sonavel
