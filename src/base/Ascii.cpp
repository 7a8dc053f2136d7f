#include "base/Ascii.h"

#include <algorithm>

namespace sonavel {

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char character) { return isAscii(character); });
}

std::string_view withoutOuterBlanks(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

bool equalsIgnoringCase(std::string_view text, std::string_view other)
{
    return std::equal(text.begin(), text.end(), other.begin(), other.end(),
        [](char left, char right) { return asciiLowerCase(left) == asciiLowerCase(right); });
}

bool beginsWithIgnoringCase(std::string_view text, std::string_view beginning)
{
    return equalsIgnoringCase(text.substr(0, beginning.size()), beginning);
}

} // namespace sonavel
