// The built-in station lists of the data server.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonavel {

struct PublicStation {
    const char* name;
    const char* address;
};

/// Well-known public stations, for a first list.
[[nodiscard]] const std::vector<PublicStation>& starterStations();

/// When the starter list was last changed, in the international date form.
inline constexpr const char* starterStationsChanged = "2026-11-01 00:00:00 +0000";

/// A station that the server itself streams, as a loop.
struct DemoStation {
    const char* name;
    /// The path of its stream on the server.
    const char* path;
    /// The loop: MP3 frames of 128 kbit/s at 44.1 kHz, the last of which fits before the first.
    std::string_view music;
    /// What the stream calls the parts of the loop, which are equally long.
    std::vector<std::string> titles;
};

[[nodiscard]] const std::vector<DemoStation>& demoStations();

} // namespace sonavel
