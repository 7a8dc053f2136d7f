// Other players' playlists, M3U and PLS, read as station lists.
#pragma once

#include "tools/ReadList.h"

#include <string_view>

namespace sonavel {

/// Reads an M3U playlist: an address in each line, and "#EXTINF:…,Title" in a line before it for its name. Attributes
/// behind "#EXTINF:" are skipped, commas in their quotes included; other lines that begin with "#" say nothing.
///
/// This and PLS have in common: Lines end with CR, LF or both. A line that is not UTF-8 is read as Windows-1252. What
/// the player could not play, such as a path or a "file:" address, is left out. Blanks around a name go, and control
/// characters within become blanks. A station without a name, or with one that a list does not keep, is named after the
/// host of its address. ";" is taken out of names and addresses, as a list text cannot hold it. What was left out, and
/// each changed address, is a finding.
[[nodiscard]] ReadList readM3u(std::string_view bytes);

/// Reads a PLS playlist: lines "FileN=address" and "TitleN=name" in any order, keys in upper or lower case. The
/// stations come in the order of their numbers; of several files of one number the first counts.
[[nodiscard]] ReadList readPls(std::string_view bytes);

} // namespace sonavel
