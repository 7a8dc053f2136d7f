// The formats in which a station list comes and goes.
#pragma once

#include "playlists/Parsers.h"

#include <optional>
#include <string>
#include <string_view>

namespace sonavel {

enum class ListFormat {
    Csv, ///< the station list text, as the player imports and exports it
    Rdb, ///< the player's station database
    Json, ///< an object: addresses and the names of their stations
    M3u, ///< other players' playlists
    Pls,
};

/// Lists are read in all formats.
[[nodiscard]] bool isWritable(ListFormat format);

/// The format called so: "csv", "rdb", "json", "m3u", "m3u8" or "pls", in upper or lower case.
[[nodiscard]] std::optional<ListFormat> formatNamed(std::string_view name);

/// The format that the extension of a path names.
[[nodiscard]] std::optional<ListFormat> formatOfPath(std::string_view path);

/// The format that the bytes look most like; they may be of none.
[[nodiscard]] ListFormat formatOfContent(std::string_view bytes);

/// Parses a list; the database is read exactly as the player reads it. An error says why the bytes are not of the
/// format.
[[nodiscard]] tl::expected<ParsedList, std::string> parseList(std::string bytes, ListFormat format);

/// The list in a format that is writable: as the player exports it, as the player's database, or as JSON with a line
/// feed at the end. Nothing when it is too large for that.
[[nodiscard]] std::optional<std::string> serializedList(const StationRecords& stations, ListFormat format);

/// How many stations the format cannot hold: JSON has one name for each address, that of the last station.
[[nodiscard]] std::size_t stationsLostBySerializing(const StationRecords& stations, ListFormat format);

} // namespace sonavel
