// Plain files of station list text: the legacy file, and what users import.
#pragma once

#include "base/Text.h"

namespace sonavel {

class Files;

/// The whole text of the file, without a byte order mark at its head. Absent when it cannot be read or is not valid
/// UTF-8.
[[nodiscard]] Text listTextOfPlainFile(const Files& files, const Text& path);

} // namespace sonavel
