#include "server/PublishedVersion.h"

#include "server/PublishedFiles.h"
#include "server/VersionFile.h"

#include <iostream>
#include <utility>

namespace sonavel {

namespace {

constexpr const char* fileName = "version.txt";

} // namespace

PublishedVersion::PublishedVersion(const PublishedFiles& files)
    : files_(files)
{
}

std::string PublishedVersion::fault()
{
    const std::lock_guard guard(mutex_);
    return read();
}

std::optional<std::string> PublishedVersion::answer()
{
    const std::lock_guard guard(mutex_);
    const std::string fault = read();
    if (std::exchange(faultTold_, fault) != fault && !fault.empty())
        std::cerr << "sonavel-data-server: " << fault << "; what it said before goes on to be published\n";
    return answer_;
}

std::string PublishedVersion::read()
{
    const auto file = files_.contentOf(fileName, {});
    if (!file) {
        answer_.reset();
        return {};
    }
    auto outcome = versionAnswerFrom(*file);
    if (const auto* fault = std::get_if<VersionFault>(&outcome))
        return std::string(fileName) + ", " + fault->text;
    answer_ = std::move(std::get<VersionAnswer>(outcome).text);
    return {};
}

} // namespace sonavel
