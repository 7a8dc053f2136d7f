// The user's files on disk.
#pragma once

#include "adapters/files/SystemCalls.h"
#include "platform/Files.h"

#include <functional>
#include <memory>

namespace sonavel {

/// Makes the process ignore SIGXFSZ, so that exceeding a file size limit is a failed write.
class PosixFiles : public Files {
public:
    /// Called by an operation that failed to save, before it returns.
    using SaveFailureObserver = std::function<void(const UserFile& file, const std::error_code& why)>;

    /// In bytes; larger files are not read.
    static constexpr std::size_t maxFileSize = std::size_t{256} << 20U;

    explicit PosixFiles(
        const Text& homeDirectory, std::unique_ptr<SystemCalls> calls = std::make_unique<SystemCalls>());

    /// Observes every failed `writeAtomically` and `makeFolderOf`, and every `reportUnsaved`.
    void setSaveFailureObserver(SaveFailureObserver observer) { saveFailureObserver_ = std::move(observer); }

    [[nodiscard]] Text homeDirectory() const override { return homeDirectory_; }
    [[nodiscard]] bool fileExists(const Text& path) const override;
    /// Never blocks on another program: only regular files are read, no pipes and devices.
    [[nodiscard]] FileResult<std::string> contentsOfFile(const Text& path) const override;
    FileResult<> writeAtomically(
        const UserFile& file, std::string_view bytes, FileAccess access = FileAccess::OwnerOnly) override;
    void removeUnfinishedWrite(const Text& path) override;
    FileResult<> keepCopy(const Text& path, const Text& copy) override;
    FileResult<> moveFile(const Text& path, const Text& newPath) override;
    FileResult<> removeFile(const Text& path) override;
    FileResult<> makeFolderOf(const UserFile& file) override;
    void reportUnsaved(const UserFile& file, const std::error_code& why) override;
    [[nodiscard]] FileResult<std::vector<std::string>> namesInFolder(const Text& path) const override;

private:
    struct Contents {
        std::string bytes;
        mode_t mode = 0;
    };

    [[nodiscard]] FileResult<std::string> linkTarget(std::string path) const;
    [[nodiscard]] FileResult<Contents> readFile(const std::string& path) const;
    [[nodiscard]] FileResult<> linkAs(const std::string& path, const std::string& copy);
    [[nodiscard]] FileResult<> makeFolders(const std::string& path);
    void synchronizeFolderOf(const std::string& path);
    FileResult<> reported(FileResult<> result, const UserFile& file);

    std::unique_ptr<SystemCalls> calls_;
    Text homeDirectory_;
    SaveFailureObserver saveFailureObserver_;
};

} // namespace sonavel
