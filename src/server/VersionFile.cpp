#include "server/VersionFile.h"

#include "server/PublishedFile.h"
#include "server/VersionText.h"

#include <utility>

namespace sonavel {

std::unique_ptr<VersionFile> VersionFile::create(
    const std::string& folder, PublishedVersion builtIn, Report report, std::string& whyNot)
{
    std::unique_ptr<VersionFile> file(new VersionFile(folder, std::move(builtIn), std::move(report)));
    const std::string mistake = file->readAnew();
    if (mistake.empty())
        return file;
    whyNot = mistake + '.';
    return nullptr;
}

VersionFile::VersionFile(const std::string& folder, PublishedVersion builtIn, Report report)
    : path_(folder.empty() ? std::string() : folder + '/' + std::string(fileName))
    , builtIn_(std::move(builtIn))
    , report_(std::move(report))
    , lastGood_(builtIn_)
{
}

PublishedVersion VersionFile::current()
{
    const std::lock_guard lock(mutex_);
    std::string mistake = readAnew();
    if (!mistake.empty() && mistake != reported_)
        report_(mistake + "; the last good version stays published.");
    reported_ = std::move(mistake);
    return lastGood_;
}

/// Half a sentence about what is wrong; empty when nothing is.
std::string VersionFile::readAnew()
{
    if (path_.empty())
        return {};
    const PublishedFile file = readPublishedFile(path_, maxFileSize);
    if (file.state == PublishedFile::State::Absent)
        return wasThere_ ? path_ + ": the file has gone" : std::string();
    if (file.state == PublishedFile::State::Unusable)
        return path_ + ": it cannot be read as a plain file of at most 64 KiB";
    auto outcome = publishedVersionFromText(file.content, builtIn_);
    if (const auto* mistake = std::get_if<VersionTextMistake>(&outcome))
        return path_ + ", line " + std::to_string(mistake->line) + ": " + mistake->why;
    lastGood_ = std::get<PublishedVersion>(std::move(outcome));
    wasThere_ = true;
    return {};
}

} // namespace sonavel
