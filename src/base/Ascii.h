// Blanks and letters of ASCII, whatever else a text holds.
#pragma once

#include <string_view>

namespace sonavel {

/// Without blanks, tabs and line ends around.
[[nodiscard]] std::string_view withoutOuterBlanks(std::string_view text);

/// Whether the text is or begins so, letters from A to Z in upper or lower case.
[[nodiscard]] bool equalsIgnoringCase(std::string_view text, std::string_view other);
[[nodiscard]] bool beginsWithIgnoringCase(std::string_view text, std::string_view beginning);

} // namespace sonavel
