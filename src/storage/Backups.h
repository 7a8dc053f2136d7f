// Copies of files that would otherwise be lost: "list.damaged.rdb", "list.damaged-2.rdb", … beside "list.rdb".
#pragma once

#include "platform/Files.h"

#include <string_view>

namespace sonavel {

/// Gives the content of `path` a further name in its folder, made of the file's own and of `reason` ("damaged"), and
/// removes all but the newest three copies of that kind. A later copy has a higher number than those present, from "-2"
/// on. Answers the copy's path; absent when the content could not be kept, and nothing has changed then.
[[nodiscard]] Text keepBackup(Files& files, const Text& path, std::string_view reason);

/// The same by renaming, so that nothing is left at `path`; takes folders too.
[[nodiscard]] Text quarantine(Files& files, const Text& path, std::string_view reason);

/// Keeps what cannot be read as "damaged", so that a new file may take its place: in either way, as the second also
/// works for folders. False when neither does; then it must not be replaced.
[[nodiscard]] bool keepDamaged(Files& files, const Text& path);

} // namespace sonavel
