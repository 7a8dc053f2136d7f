#include "server/VersionFile.h"

#include "server/PublishedFiles.h"

#include <utility>

namespace sonavel {

tl::expected<std::unique_ptr<VersionFile>, std::string> VersionFile::create(
    const std::string& folder, PublishedVersion defaultVersion, Report report)
{
    std::unique_ptr<VersionFile> file(new VersionFile(folder, std::move(defaultVersion), std::move(report)));
    if (const auto loaded = file->reload(); !loaded)
        return tl::unexpected(loaded.error() + '.');
    return file;
}

VersionFile::VersionFile(const std::string& folder, PublishedVersion defaultVersion, Report report)
    : path_(folder.empty() ? std::string() : folder + '/' + std::string(fileName))
    , defaultVersion_(std::move(defaultVersion))
    , report_(std::move(report))
    , lastValid_(defaultVersion_)
{
}

PublishedVersion VersionFile::current()
{
    const std::lock_guard lock(mutex_);
    const auto loaded = reload();
    std::string error = loaded ? "" : loaded.error();
    if (!loaded && error != reported_)
        report_(error + "; the last good version stays published.");
    reported_ = std::move(error);
    return lastValid_;
}

/// An error is half a sentence that begins with the path.
tl::expected<void, std::string> VersionFile::reload()
{
    if (path_.empty())
        return {};
    const auto content = readPublishedFile(path_, maxFileSize);
    if (content == tl::unexpected(PublishedFileError::Absent) && !wasThere_)
        return {};
    if (!content)
        return tl::unexpected(path_
            + (content.error() == PublishedFileError::Absent
                    ? ": the file has gone"
                    : ": it cannot be read as a plain file of at most 64 KiB"));
    auto version = parseVersionText(*content, defaultVersion_);
    if (!version)
        return tl::unexpected(path_ + ", line " + std::to_string(version.error().line) + ": " + version.error().why);
    lastValid_ = *std::move(version);
    wasThere_ = true;
    return {};
}

} // namespace sonavel
