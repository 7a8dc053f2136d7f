// The title that a stream sends, as the user sees it.
#pragma once

#include "base/Text.h"

#include <string_view>

namespace sonavel {

/// Reads a title in UTF-8 or, where it is not valid UTF-8, in Windows-1252 (of which Latin-1 is a part). Characters
/// that control lines or the direction of the text around become blanks, outer blanks go, and what is longer than 500
/// bytes is cut at a character. Never absent.
[[nodiscard]] Text streamTitle(std::string_view bytes);

} // namespace sonavel
