// What the data server publishes: the files of a folder, and built-in answers where it has none.
#pragma once

#include "server/PublishedFile.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace sonavel {

/// Safe to ask from several threads.
class PublishedFiles {
public:
    /// `folder` may be empty: then there are the built-in answers alone.
    explicit PublishedFiles(std::string folder);

    /// Makes an answer for a client that reaches the server at that base address, such as "http://example.org:8080/".
    using BuiltIn = std::function<std::string(const std::string& baseAddress)>;

    /// Answers for `name` where the folder has no such file. Before the first request.
    void addBuiltIn(const std::string& name, BuiltIn answer);

    /// The content published under a name, for a client that reaches the server at `baseAddress`. Only regular files
    /// directly in the folder are published, of at most 64 MiB, with a name of at most 255 bytes that does not begin
    /// with "." and contains no "/", "\" or control character. An unusable file is not replaced by the built-in answer.
    [[nodiscard]] tl::expected<std::string, PublishedFileError> contentOf(
        const std::string& name, const std::string& baseAddress) const;

private:
    std::string folder_;
    std::map<std::string, BuiltIn, std::less<>> builtIn_;
};

} // namespace sonavel
