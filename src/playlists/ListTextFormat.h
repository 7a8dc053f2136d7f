// The list text of the player itself, parsed with diagnostics.
#pragma once

#include "playlists/ParsedList.h"

namespace sonavel {

/// Parses a list text exactly as the player does. Lines that are skipped and fields that are ignored are diagnosed.
[[nodiscard]] ParsedList parseListText(const Text& text);

} // namespace sonavel
