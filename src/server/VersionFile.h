// The newest version as the maker states it in a file that he may change while the data server runs.
#pragma once

#include "base/NonCopyable.h"
#include "server/PublishedVersion.h"

#include <tl/expected.hpp>

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace sonavel {

/// Reads the file "version.txt" of a folder, anew each time it is asked. A file that has become unusable, or has gone,
/// changes nothing: the last good version stays, and what is wrong is reported once.
///
/// Safe to ask from several threads.
class VersionFile : private NonCopyable {
public:
    static constexpr std::string_view fileName = "version.txt";
    static constexpr std::size_t maxFileSize = 65'536;

    using Report = std::function<void(const std::string& sentence)>;

    /// Fails when there is a file that cannot be published; the error is one sentence with file, line and reason.
    /// Without a file, as in an empty `folder`, `builtIn` is the version until there is one. `report` is called within
    /// `current`.
    [[nodiscard]] static tl::expected<std::unique_ptr<VersionFile>, std::string> create(
        const std::string& folder, PublishedVersion builtIn, Report report);

    /// The version to publish now.
    [[nodiscard]] PublishedVersion current();

private:
    VersionFile(const std::string& folder, PublishedVersion builtIn, Report report);

    [[nodiscard]] tl::expected<void, std::string> reload();

    const std::string path_; ///< empty without a folder
    const PublishedVersion builtIn_;
    const Report report_;
    std::mutex mutex_;
    PublishedVersion lastGood_;
    bool wasThere_ = false;
    std::string reported_;
};

} // namespace sonavel
