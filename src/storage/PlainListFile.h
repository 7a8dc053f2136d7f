// Plain files of station list text: the legacy file, and what users import.
#pragma once

#include "platform/Files.h"

namespace sonavel {

/// The whole text of the file, without a byte order mark at its head. Fails with `illegal_byte_sequence` when it is not
/// valid UTF-8.
[[nodiscard]] FileResult<Text> listTextOfPlainFile(const Files& files, const Text& path);

} // namespace sonavel
