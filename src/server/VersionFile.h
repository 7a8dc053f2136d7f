// The newest version as stated in a file, which may change while the data server runs.
#pragma once

#include "base/NonCopyable.h"
#include "server/VersionText.h"

#include <tl/expected.hpp>

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace sonavel {

/// Reads the file "version.txt" of a folder again for each request. A file that has become invalid or was removed
/// changes nothing: the last valid version stays, and the problem is reported once. Thread-safe.
class VersionFile : private NonCopyable {
public:
    static constexpr std::string_view fileName = "version.txt";
    static constexpr std::size_t maxFileSize = 65'536;

    using Report = std::function<void(const std::string& sentence)>;

    /// Fails when there is a file that cannot be published; the error is one sentence with file, line and reason.
    /// Without a file, as in an empty `folder`, `defaultVersion` is used until there is one. `report` is called within
    /// `current`.
    [[nodiscard]] static tl::expected<std::unique_ptr<VersionFile>, std::string> create(
        const std::string& folder, PublishedVersion defaultVersion, Report report);

    /// The version to publish now.
    [[nodiscard]] PublishedVersion current();

private:
    VersionFile(const std::string& folder, PublishedVersion defaultVersion, Report report);

    [[nodiscard]] tl::expected<void, std::string> reload();

    const std::string path_; ///< empty without a folder
    const PublishedVersion defaultVersion_;
    const Report report_;
    std::mutex mutex_;
    PublishedVersion lastValid_;
    bool wasThere_ = false;
    std::string reported_;
};

} // namespace sonavel
