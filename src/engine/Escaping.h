// Texts within a line of the protocol.
#pragma once

#include "base/Text.h"

#include <optional>
#include <string>
#include <string_view>

namespace sonavel {

/// Whether a text is the last argument of its line, so that it may hold blanks.
enum class Place { Last, Before };

/// Control characters and "%" as %XX, and blanks where another argument follows.
[[nodiscard]] std::string escaped(std::string_view text, Place place);

/// Nothing when an escape is broken or the result is not valid UTF-8.
[[nodiscard]] std::optional<Text> unescaped(std::string_view text);

} // namespace sonavel
