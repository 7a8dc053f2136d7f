// Copies of files that would otherwise be lost: "list.damaged.rdb", "list.damaged-2.rdb", … beside "list.rdb".
#pragma once

#include "platform/Files.h"

#include <string_view>

namespace sonavel {

/// Gives the content of `path` a further name in its folder, made of the file's own and of `mark` ("damaged"), and
/// removes all but the newest three copies of that kind. A later copy has a higher number than those present, from "-2"
/// on. Gives the copy's path; after a failure nothing has changed.
[[nodiscard]] FileResult<Text> keepBackup(Files& files, const Text& path, std::string_view mark);

/// The same by renaming, so that nothing is left at `path`; takes folders too.
[[nodiscard]] FileResult<Text> quarantine(Files& files, const Text& path, std::string_view mark);

/// Keeps what cannot be read as "damaged", so that a new file may take its place: in either way, as the second also
/// works for folders. When both fail it must not be replaced.
[[nodiscard]] FileResult<Text> keepDamaged(Files& files, const Text& path);

} // namespace sonavel
