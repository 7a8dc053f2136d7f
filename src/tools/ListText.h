// The station list text, read with an account of what is wrong with it.
#pragma once

#include "tools/ReadList.h"

#include <string>

namespace sonavel {

/// Reads a list text exactly as the player does. Lines that are skipped and fields that are ignored are findings.
[[nodiscard]] ReadList readListText(const Text& text);

/// Reads a file of list text, a byte order mark at its head, line ends of other systems and lines of other encodings
/// included, as `readList` tells.
[[nodiscard]] ReadList readForeignListText(std::string bytes);

} // namespace sonavel
