// The files of the user on disk.
#pragma once

#include "adapters/files/SystemCalls.h"
#include "platform/Files.h"

#include <functional>
#include <memory>

namespace sonavel {

/// Makes the process ignore SIGXFSZ, so that a file size limit is a failed write and not the end of the program.
class PosixFiles : public Files {
public:
    /// Told of a write that failed: the path that was to be written, and why in the system's words. Called from inside
    /// the failing operation.
    using WriteFailureObserver = std::function<void(const Text& path, const Text& why)>;

    /// Files larger than this are not read, in bytes.
    static constexpr std::size_t maxFileSize = std::size_t{256} << 20U;

    explicit PosixFiles(
        const Text& homeDirectory, std::unique_ptr<SystemCalls> calls = std::make_unique<SystemCalls>());

    /// Hears of every failed `writeAtomically`, `makeFolder` and `keepCopy`.
    void setWriteFailureObserver(WriteFailureObserver observer) { writeFailureObserver_ = std::move(observer); }

    [[nodiscard]] Text homeDirectory() const override { return homeDirectory_; }
    [[nodiscard]] bool fileExists(const Text& path) const override;
    /// Never waits for another program: what is not a regular file (a pipe, a device) cannot be read.
    [[nodiscard]] std::optional<std::string> contentsOfFile(const Text& path) const override;
    bool writeAtomically(const Text& path, std::string_view bytes, FileAccess access = FileAccess::OwnerOnly) override;
    void removeUnfinishedWrite(const Text& path) override;
    bool keepCopy(const Text& path, const Text& copy) override;
    bool moveFile(const Text& path, const Text& newPath) override;
    bool removeFile(const Text& path) override;
    bool makeFolder(const Text& path) override;
    [[nodiscard]] std::vector<std::string> namesInFolder(const Text& path) const override;

private:
    [[nodiscard]] std::error_code followLinks(std::string& path) const;
    [[nodiscard]] std::error_code readFile(const std::string& path, std::string& content, mode_t& mode) const;
    [[nodiscard]] std::error_code linkAs(const std::string& path, const std::string& copy);
    [[nodiscard]] std::error_code copyAs(const std::string& path, const std::string& copy);
    [[nodiscard]] std::error_code makeFolders(const std::string& path);
    void synchronizeFolderOf(const std::string& path);
    [[nodiscard]] bool tell(std::error_code failure, const Text& path) const;

    std::unique_ptr<SystemCalls> calls_;
    Text homeDirectory_;
    WriteFailureObserver writeFailureObserver_;
};

} // namespace sonavel
