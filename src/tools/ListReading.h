// Station lists of every form, read.
#pragma once

#include "tools/ListFormat.h"
#include "tools/ReadList.h"

#include <optional>
#include <string>

namespace sonavel {

/// Reads a list of the format given. Nothing when the bytes are not of it: a database that cannot be decrypted, or what
/// is not JSON; every text is a list text or playlist, if need be without stations.
///
/// Of the list text more is read than the player reads, so that a list can be mended by writing it again. Each of these
/// is a finding: a text without any carriage return has its lines end at line feeds; where all line feeds follow
/// carriage returns, they belong to the line ends; lines that are not UTF-8 are read as Windows-1252. The database is
/// read exactly as the player reads it.
[[nodiscard]] std::optional<ReadList> readList(std::string bytes, ListFormat format);

} // namespace sonavel
