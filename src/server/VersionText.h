// The newest version of the program: as the publisher states it in a text file, and as players get it.
#pragma once

#include <tl/expected.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace sonavel {

/// All texts are printable ASCII without ";", and what their names say; notes are without a backslash before an "n".
struct PublishedVersion {
    /// Up to three numbers with points between.
    std::string version;
    std::string build;
    /// Web addresses of the program and of the page where the user gets it; empty for the server's own address.
    std::string application;
    std::string page;
    /// Release notes, in their order.
    std::vector<std::string> notes;
    /// Dates in the international form: of this version, and of the last change of the station list.
    std::string released;
    std::string listChanged;
};

/// The response to players: eight values by their position, each in a line of its own that ends with a carriage
/// return. `baseAddress` is where the client reaches the server.
[[nodiscard]] std::string versionResponse(const PublishedVersion& published, const std::string& baseAddress);

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
