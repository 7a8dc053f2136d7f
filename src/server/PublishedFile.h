// One file of the published folder, read without trust in what lies under its name.
#pragma once

#include <tl/expected.hpp>

#include <cstddef>
#include <string>

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

} // namespace sonavel
