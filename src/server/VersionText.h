// The text of a version file, in which the publisher states the newest version.
#pragma once

#include "server/PublishedVersion.h"

#include <tl/expected.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace sonavel {

/// Why a text is refused.
struct ParseError {
    /// Counted from 1; the last one where something is missing.
    std::size_t line = 1;
    /// Half a sentence in one line, without a full stop.
    std::string why;
};

/// Parses lines of "key = value" that end with LF or CR LF. Empty lines and those that begin with "#" are ignored, as
/// are blanks around keys and values, and a byte order mark.
///
/// The keys are "version" and "build", which are required, "page", "application", "released" and "list changed", and
/// "note", the only one that may be repeated. What the text does not give is taken from `defaults`, except the notes.
/// A value that a response cannot carry to the player unchanged is an error; the first error is returned.
[[nodiscard]] tl::expected<PublishedVersion, ParseError> parseVersionText(
    std::string_view text, PublishedVersion defaults);

} // namespace sonavel
