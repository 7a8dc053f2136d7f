// Atomic writes: a new file is complete and on disk before it is renamed over the old one.
#pragma once

#include "adapters/files/SystemCalls.h"
#include "platform/Files.h"

#include <optional>
#include <string>
#include <string_view>

namespace sonavel {

/// Writes one file so that readers always find a complete content. The temporary file has a fixed name in the same
/// folder, ".NAME.saving", so that the next write or `removeUnfinished` removes what a crash left. Concurrent writers
/// of one file are not supported.
class AtomicFileWriter {
public:
    /// `path` is absolute and not a symbolic link.
    AtomicFileWriter(SystemCalls& calls, std::string_view path);

    /// Replaces the file, which keeps its mode, or makes it with `access`. On failure the old content remains and the
    /// temporary file is removed; when only syncing the folder failed, the new content is there, complete.
    [[nodiscard]] FileResult<> replace(std::string_view bytes, FileAccess access);

    /// Creates the file with the given mode. Fails, and changes nothing, when it exists.
    [[nodiscard]] FileResult<> create(std::string_view bytes, mode_t mode);

    /// Removes the temporary file, if it is a regular file of this user.
    void removeUnfinished();

private:
    [[nodiscard]] FileResult<std::optional<mode_t>> modeOfOldFile(const OpenFile& folder);
    [[nodiscard]] FileResult<> writeTemporary(
        const OpenFile& folder, std::string_view bytes, mode_t firstMode, std::optional<mode_t> lastMode);

    SystemCalls& calls_;
    std::string path_;
    std::string name_;
    std::string temporaryName_;
};

/// Opens the folder that contains `path`, which is absolute.
[[nodiscard]] int openFolderOf(SystemCalls& calls, std::string_view path);

/// Syncs renames, links and removals in an open folder to disk.
[[nodiscard]] FileResult<> synchronizeFolder(SystemCalls& calls, const OpenFile& folder);

} // namespace sonavel
