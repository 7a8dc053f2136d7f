// The atomic write: a new file beside the old one, complete and on disk before it takes the old one's name.
#pragma once

#include "adapters/files/SystemCalls.h"
#include "platform/Files.h"

#include <optional>
#include <string>
#include <string_view>

namespace sonavel {

/// Writes one file so that its name always stands for a whole content. Its temporary file lies beside it under one
/// fixed name, ".NAME.saving": what a crash left behind is replaced by the next write, or removed, and never piles up.
/// Two writers of the same file at once are not provided for.
class AtomicFileWriter {
public:
    /// `path` is absolute, and itself no link.
    AtomicFileWriter(SystemCalls& calls, std::string_view path);

    /// Replaces the file, which keeps its mode, or makes it with `access`. On failure the old content stands and the
    /// temporary file is gone; when only the last step failed, which makes the replacement outlast a power cut, the
    /// new content stands, whole.
    [[nodiscard]] FileResult<> replace(std::string_view bytes, FileAccess access);

    /// Makes the file with the given mode. Fails when its name is taken; nothing has changed then.
    [[nodiscard]] FileResult<> create(std::string_view bytes, mode_t mode);

    /// Removes the temporary file, if there is one that a write of this user's can have left.
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

/// Opens the folder in which the absolute path `path` lies.
[[nodiscard]] int openFolderOf(SystemCalls& calls, std::string_view path);

/// Makes what was renamed, linked or removed in an open folder outlast a power cut.
[[nodiscard]] FileResult<> synchronizeFolder(SystemCalls& calls, const OpenFile& folder);

} // namespace sonavel
