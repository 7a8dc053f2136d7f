// The forms in which a station list comes and goes.
#pragma once

#include <optional>
#include <string_view>

namespace sonavel {

/// Lists are read in all of these forms and written in the first three.
enum class ListFormat {
    Csv, ///< the station list text, as the player imports and exports it
    Rdb, ///< the player's station database
    Json, ///< an object: addresses and the names of their stations
    M3u, ///< other players' playlists
    Pls,
};

[[nodiscard]] bool isWritable(ListFormat format);

/// The format called so: "csv", "rdb", "json", "m3u", "m3u8" or "pls", in upper or lower case.
[[nodiscard]] std::optional<ListFormat> formatNamed(std::string_view name);

/// The format that the extension of a path names.
[[nodiscard]] std::optional<ListFormat> formatOfPath(std::string_view path);

/// The format that the bytes look most like; they may be of none.
[[nodiscard]] ListFormat formatOfContent(std::string_view bytes);

} // namespace sonavel
