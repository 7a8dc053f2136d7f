// The version that the maker publishes in "version.txt".
#pragma once

#include <mutex>
#include <optional>
#include <string>

namespace sonavel {

class PublishedFiles;

/// Follows the file: what it says counts from the next request on. Safe to ask from several threads.
class PublishedVersion {
public:
    /// Borrows the files.
    explicit PublishedVersion(const PublishedFiles& files);

    /// Why the file cannot be published, in one sentence; empty when it can, or there is none.
    [[nodiscard]] std::string fault();

    /// The answer that the file makes. Where it cannot be published, the one that it made last, and the standard error
    /// output tells why. Nothing when there is no file.
    [[nodiscard]] std::optional<std::string> answer();

private:
    [[nodiscard]] std::string read();

    const PublishedFiles& files_;
    std::mutex mutex_;
    std::optional<std::string> answer_;
    std::string faultTold_;
};

} // namespace sonavel
