// One file of the published folder, read with care: whatever else may lie under its name.
#pragma once

#include <cstddef>
#include <string>

namespace sonavel {

struct PublishedFile {
    enum class State {
        /// There is nothing of that name.
        Absent,
        /// It is a link, a folder or a pipe, is too large, or cannot be read to its end.
        Unusable,
        Read,
    };

    State state = State::Absent;
    /// Empty unless it was read.
    std::string content;
};

/// Reads a regular file of at most that many bytes, following no link in the last part of its path; never waits for
/// what is no file. Any thread.
[[nodiscard]] PublishedFile readPublishedFile(const std::string& path, std::size_t largest);

} // namespace sonavel
