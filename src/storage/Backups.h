// Copies of files that would otherwise be lost: "list.damaged.rdb", "list.damaged-2.rdb", … beside "list.rdb".
#pragma once

#include "platform/Files.h"

#include <string_view>

namespace sonavel {

/// Gives the content of `path` a further name in its folder, made of the file's own and `mark` ("damaged"), and removes
/// all but the newest three backups of that mark. A new backup has a higher number than the existing ones, from "-2"
/// on. Returns the backup's path; after a failure nothing has changed.
[[nodiscard]] FileResult<Text> keepBackup(Files& files, const Text& path, std::string_view mark);

/// The same by renaming, so that nothing is left at `path`; takes folders too.
[[nodiscard]] FileResult<Text> quarantine(Files& files, const Text& path, std::string_view mark);

/// Keeps an unreadable file as "damaged", so that it may be replaced: as a backup or else, as with folders, by
/// quarantine. When both fail it must not be replaced.
[[nodiscard]] FileResult<Text> keepDamaged(Files& files, const Text& path);

} // namespace sonavel
