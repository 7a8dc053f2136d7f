// The files of the user, as the program needs them.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sonavel {

/// Who may read a file that is made: its owner alone, or whoever the user lets read new files (the umask).
enum class FileAccess { OwnerOnly, AsUsual };

/// Paths are absolute, in UTF-8. Links are followed. No operation throws; main thread.
class Files : private NonCopyable {
public:
    virtual ~Files() = default;

    /// The folder under which the program's files lie, without a trailing "/".
    [[nodiscard]] virtual Text homeDirectory() const = 0;

    /// Whether anything of that name is there: a file, readable or not, or a folder.
    [[nodiscard]] virtual bool fileExists(const Text& path) const = 0;

    /// The whole content. Nothing when there is no such file, it is a folder, or it cannot be read to its end.
    [[nodiscard]] virtual std::optional<std::string> contentsOfFile(const Text& path) const = 0;

    /// Replaces the file, which keeps its mode, or makes it with `access`, in one step: a reader, or a later run after
    /// a crash or power cut, finds either the old content whole or the new. Answers false when it could not; the old
    /// content then stands (or the new, whole, where only the last step failed, that makes it outlast a power cut) and
    /// no temporary file is left.
    virtual bool writeAtomically(
        const Text& path, std::string_view bytes, FileAccess access = FileAccess::OwnerOnly) = 0;

    /// Removes what an atomic write of this file left beside it when its process was killed; where `path` is a link,
    /// beside what it leads to. Anything else of the left-over's name, such as a link or another user's file, stays.
    /// Never while the file is being written.
    virtual void removeUnfinishedWrite(const Text& path) = 0;

    /// Gives the content of `path` a second name, which keeps it when `path` is replaced. False when `copy` is taken or
    /// cannot be made; nothing has changed then.
    virtual bool keepCopy(const Text& path, const Text& copy) = 0;

    /// Renames a file or folder. False when it could not, or `newPath` is taken; nothing has changed then.
    virtual bool moveFile(const Text& path, const Text& newPath) = 0;

    /// Removes a file; false when it could not.
    virtual bool removeFile(const Text& path) = 0;

    /// Makes the folder and those above it where they are missing, for the owner alone. False when it could not.
    virtual bool makeFolder(const Text& path) = 0;

    /// The names in a folder, in no order; empty when it cannot be read.
    [[nodiscard]] virtual std::vector<std::string> namesInFolder(const Text& path) const = 0;
};

} // namespace sonavel
