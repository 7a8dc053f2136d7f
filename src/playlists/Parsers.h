// The parsers of station lists that other programs and people write, one for each format.
#pragma once

#include "playlists/ParsedList.h"

#include <tl/expected.hpp>

#include <string>
#include <string_view>

namespace sonavel {

// The bytes are of any origin. An error says in a few words why they are not of the format; where a parser gives none,
// every text is of its format, if need be without stations.

/// Parses a list text exactly as the player does. Lines that are skipped and fields that are ignored are diagnosed.
[[nodiscard]] ParsedList parseListText(const Text& text);

/// Parses a file of list text, of which more is read than the player reads, so that a list can be mended by writing it
/// again. Each of these is diagnosed: a byte order mark at its head; a text without any carriage return has its lines
/// end at line feeds; where all line feeds follow carriage returns, they belong to the line ends; lines that are not
/// UTF-8 are read as Windows-1252.
[[nodiscard]] ParsedList parseListTextFile(std::string bytes);

/// Parses a JSON object in UTF-8: each member's name is an address, its value the station's name. The stations come in
/// the order of the members, repeated addresses too.
///
/// Members whose value is no text are left out. ";" and carriage returns are taken out of names and addresses, and a
/// name that a list does not keep is replaced by one from its address, or its station left out; these are diagnosed.
[[nodiscard]] tl::expected<ParsedList, std::string> parseJson(std::string_view bytes);

/// Parses an M3U playlist: an address in each line, and "#EXTINF:…,Title" in a line before it for its name. Attributes
/// behind "#EXTINF:" are skipped, commas in their quotes included; other lines that begin with "#" say nothing.
///
/// This and PLS have in common: Lines end with CR, LF or both. A line that is not UTF-8 is read as Windows-1252. What
/// the player could not play, such as a path or a "file:" address, is left out. Blanks around a name go, and control
/// characters within become blanks. A station without a name, or with one that a list does not keep, is named after the
/// host of its address. ";" is taken out of names and addresses, as a list text cannot hold it. What was left out, and
/// each changed address, is diagnosed.
[[nodiscard]] ParsedList parseM3u(std::string_view bytes);

/// Parses a PLS playlist: lines "FileN=address" and "TitleN=name" in any order, keys in upper or lower case. The
/// stations come in the order of their numbers; of several files of one number the first counts.
[[nodiscard]] ParsedList parsePls(std::string_view bytes);

// Whether the bytes, without a byte order mark and outer blanks, look like the format.
[[nodiscard]] bool looksLikeJson(std::string_view bytes);
[[nodiscard]] bool looksLikeM3u(std::string_view bytes);
[[nodiscard]] bool looksLikePls(std::string_view bytes);

} // namespace sonavel
