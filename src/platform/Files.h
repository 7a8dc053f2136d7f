// The files of the user, as the program needs them.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"
#include "platform/UserFile.h"

#include <tl/expected.hpp>

#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace sonavel {

/// Who may read a file that is made: its owner alone, or whoever the user lets read new files (the umask).
enum class FileAccess { OwnerOnly, AsUsual };

/// The result of an operation, or the system's error.
template <class Value = void> using FileResult = tl::expected<Value, std::error_code>;

/// Whether reading failed because there is no such file.
[[nodiscard]] inline bool isAbsent(const std::error_code& failure)
{
    return failure == std::errc::no_such_file_or_directory || failure == std::errc::not_a_directory;
}

/// Paths are absolute, in UTF-8. Links are followed. No operation throws; main thread.
class Files : private NonCopyable {
public:
    virtual ~Files() = default;

    /// The folder under which the program's files lie, without a trailing "/".
    [[nodiscard]] virtual Text homeDirectory() const = 0;

    /// Whether anything of that name is there: a file, readable or not, or a folder.
    [[nodiscard]] virtual bool fileExists(const Text& path) const = 0;

    /// The whole content. Fails when there is no such file, it is no regular file, or it cannot be read to its end.
    [[nodiscard]] virtual FileResult<std::string> contentsOfFile(const Text& path) const = 0;

    /// Replaces the file, which keeps its mode, or makes it with `access`, in one step: a reader, or a later run after
    /// a crash or power cut, finds either the complete old content or the new. After a failure the old content remains
    /// (or the new one, when only syncing the folder failed), and no temporary file is left.
    virtual FileResult<> writeAtomically(
        const UserFile& file, std::string_view bytes, FileAccess access = FileAccess::OwnerOnly) = 0;

    /// Removes what an atomic write of this file left beside it when its process was killed; where `path` is a link,
    /// beside its target. Anything else of the temporary file's name, such as a link or another user's file, stays.
    /// Never while the file is being written.
    virtual void removeUnfinishedWrite(const Text& path) = 0;

    /// Gives the content of `path` a second name, which keeps it when `path` is replaced. Fails when `copy` is taken;
    /// after a failure nothing has changed.
    virtual FileResult<> keepCopy(const Text& path, const Text& copy) = 0;

    /// Renames a file or folder. Fails when `newPath` is taken; after a failure nothing has changed.
    virtual FileResult<> moveFile(const Text& path, const Text& newPath) = 0;

    virtual FileResult<> removeFile(const Text& path) = 0;

    /// Makes the folder of the file and those above it where they are missing, for the owner alone.
    virtual FileResult<> makeFolderOf(const UserFile& file) = 0;

    /// Tells the user that the file is not saved, as a failed `writeAtomically` or `makeFolderOf` does by itself.
    virtual void reportUnsaved(const UserFile& file, const std::error_code& why) = 0;

    /// The names in a folder, in no order.
    [[nodiscard]] virtual FileResult<std::vector<std::string>> namesInFolder(const Text& path) const = 0;
};

} // namespace sonavel
