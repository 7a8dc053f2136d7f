// What the data server publishes: the files of a folder, and built-in responses for what it lacks.
#pragma once

#include <tl/expected.hpp>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <utility>

namespace sonavel {

enum class PublishedFileError {
    /// There is nothing of that name.
    Absent,
    /// It is a link, a folder or a pipe, is too large, or cannot be read to its end.
    Unusable,
};

/// The content of a regular file of at most `maxSize` bytes. Follows no link in the last part of the path, and does not
/// block on a pipe. Any thread.
[[nodiscard]] tl::expected<std::string, PublishedFileError> readPublishedFile(
    const std::string& path, std::size_t maxSize);

/// `contentOf` is thread-safe.
class PublishedFiles {
public:
    /// `folder` may be empty: then there are the built-in responses alone.
    explicit PublishedFiles(std::string folder)
        : folder_(std::move(folder))
    {
    }

    /// Returns the content for a client that reaches the server at that base address, such as
    /// "http://example.org:8080/".
    using BuiltIn = std::function<std::string(const std::string& baseAddress)>;

    /// Used for `name` when the folder has no such file. To be called before the first request.
    void addBuiltIn(const std::string& name, BuiltIn content) { builtIn_.insert_or_assign(name, std::move(content)); }

    /// The content published under a name, for a client that reaches the server at `baseAddress`. Only regular files
    /// directly in the folder are published, of at most 64 MiB, with a name of at most 255 bytes that does not begin
    /// with "." and contains no "/", "\" or control character. An unusable file is not replaced by the built-in
    /// response.
    [[nodiscard]] tl::expected<std::string, PublishedFileError> contentOf(
        const std::string& name, const std::string& baseAddress) const;

private:
    std::string folder_;
    std::map<std::string, BuiltIn, std::less<>> builtIn_;
};

} // namespace sonavel
