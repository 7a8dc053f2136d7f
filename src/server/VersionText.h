// The file in which the maker states the newest version.
#pragma once

#include "server/PublishedVersion.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

namespace sonavel {

/// Why nothing can be published of such a file.
struct VersionTextMistake {
    /// Counted from 1; the last one where something is missing.
    std::size_t line = 1;
    /// Half a sentence in one line, without a full stop.
    std::string why;
};

/// Reads lines of "key = value" that end with line feeds, with or without carriage returns. Empty lines and those that
/// begin with "#" say nothing, blanks around keys and values neither, nor a byte order mark.
///
/// The keys are "version" and "build", which have to be there, "page", "application", "released" and "list changed",
/// and "note", the only one that may come repeatedly. What the text does not give is as in `usual`, whose notes do not
/// count. Whatever an answer cannot carry to the player as it stands is a mistake; the first one is answered.
[[nodiscard]] std::variant<PublishedVersion, VersionTextMistake> publishedVersionFromText(
    std::string_view text, PublishedVersion usual);

} // namespace sonavel
