// Files in memory, whose operations fail on demand.
#pragma once

#include "platform/Files.h"

#include <map>
#include <set>

namespace sonavel {

/// A file is an entry of `files`; a folder is an entry of `folders` or whatever has a file in it. Log and faults count
/// the operations that can fail, that is all but `fileExists`.
class MemoryFiles : public Files {
public:
    explicit MemoryFiles(Text home = "/home/listener")
        : home_(std::move(home))
    {
    }

    std::map<std::string, std::string> files;
    std::set<std::string> folders;
    /// Paths of files that are there and cannot be read.
    std::set<std::string> unreadable;
    /// "write PATH", "read PATH", "keep PATH COPY", "move PATH PATH", "remove PATH", "mkdir PATH", "list PATH".
    mutable std::vector<std::string> log;

    /// Lets the n-th operation from now fail, counted from 1.
    void failOperation(std::size_t n) { failingOperation_ = log.size() + n; }
    /// Lets every operation from now on whose log entry begins so fail; "" for none.
    void failAll(std::string logEntry) { failingEntry_ = std::move(logEntry); }

    [[nodiscard]] std::string inPreferences(std::string_view name) const
    {
        return home_.string() + "/Library/Preferences/" + std::string(name);
    }

    [[nodiscard]] Text homeDirectory() const override { return home_; }

    [[nodiscard]] bool fileExists(const Text& path) const override
    {
        return files.contains(path.string()) || isFolder(path.string());
    }

    [[nodiscard]] FileResult<std::string> contentsOfFile(const Text& path) const override
    {
        if (fails("read " + path.string()) || unreadable.contains(path.string()) || isFolder(path.string()))
            return failure();
        if (!files.contains(path.string()))
            return failure(std::errc::no_such_file_or_directory);
        return files.at(path.string());
    }

    FileResult<> writeAtomically(
        const UserFile& file, std::string_view bytes, FileAccess /*access*/ = FileAccess::OwnerOnly) override
    {
        const std::string path = file.path.string();
        if (fails("write " + path) || isFolder(path) || !isFolder(folderOf(path)))
            return failure();
        files[path] = std::string(bytes);
        unreadable.erase(path);
        return {};
    }

    void removeUnfinishedWrite(const Text& path) override
    {
        const std::string whole = path.string();
        const std::size_t name = whole.rfind('/') + 1;
        files.erase(whole.substr(0, name) + "." + whole.substr(name) + ".saving");
    }

    FileResult<> keepCopy(const Text& path, const Text& copy) override
    {
        const std::string name = copy.string();
        if (fails("keep " + path.string() + " " + name) || !files.contains(path.string()) || fileExists(copy))
            return failure();
        files[name] = files.at(path.string());
        if (unreadable.contains(path.string()))
            unreadable.insert(name);
        return {};
    }

    FileResult<> moveFile(const Text& path, const Text& newPath) override
    {
        if (fails("move " + path.string() + " " + newPath.string()) || fileExists(newPath) || !fileExists(path))
            return failure();
        if (folders.erase(path.string()) == 1)
            folders.insert(newPath.string());
        else
            files.insert({newPath.string(), files.extract(path.string()).mapped()});
        if (unreadable.erase(path.string()) == 1)
            unreadable.insert(newPath.string());
        return {};
    }

    FileResult<> removeFile(const Text& path) override
    {
        if (fails("remove " + path.string()) || files.erase(path.string()) == 0)
            return failure();
        return {};
    }

    FileResult<> makeFolderOf(const UserFile& file) override
    {
        const std::string folder = folderOf(file.path.string());
        if (fails("mkdir " + folder) || files.contains(folder))
            return failure();
        folders.insert(folder);
        return {};
    }

    void reportUnsaved(const UserFile& file, const std::error_code& /*why*/) override
    {
        log.push_back("unsaved " + file.path.string());
    }

    [[nodiscard]] FileResult<std::vector<std::string>> namesInFolder(const Text& path) const override
    {
        std::vector<std::string> names;
        if (fails("list " + path.string()))
            return failure();
        const auto add = [&](const std::string& entry) {
            if (folderOf(entry) + "/" == path.string() || folderOf(entry) == path.string())
                names.push_back(entry.substr(entry.rfind('/') + 1));
        };
        for (const auto& [file, content] : files)
            add(file);
        for (const std::string& folder : folders)
            add(folder);
        return names;
    }

private:
    static tl::unexpected<std::error_code> failure(std::errc why = std::errc::io_error)
    {
        return tl::unexpected(std::make_error_code(why));
    }

    static std::string folderOf(const std::string& path) { return path.substr(0, path.rfind('/')); }

    bool isFolder(const std::string& path) const
    {
        const auto file = files.lower_bound(path + "/");
        return folders.contains(path) || (file != files.end() && file->first.starts_with(path + "/"));
    }

    /// Logs an operation; true when it has to fail. Reading is logged too.
    bool fails(const std::string& operation) const
    {
        log.push_back(operation);
        return log.size() == failingOperation_ || (!failingEntry_.empty() && operation.starts_with(failingEntry_));
    }

    Text home_;
    std::size_t failingOperation_ = 0;
    std::string failingEntry_;
};

} // namespace sonavel
