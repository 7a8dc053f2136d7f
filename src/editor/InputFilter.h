// What the fields of the edit sheet let through.
#pragma once

#include "base/Text.h"

#include <cstdint>

namespace sonavel {

/// Every two blanks in a row made one, in one pass from the start; cut to `limit` UTF-16 code units, or one less where
/// a character would be split; and without ";". A negative limit never cuts.
[[nodiscard]] Text filteredInput(const Text& text, std::int32_t limit);

} // namespace sonavel
