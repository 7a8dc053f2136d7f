// A list that was read, as lines to compare.
#pragma once

#include "model/KVStationWebRadio.h"
#include "playlists/ParsedList.h"

#include <string>
#include <vector>

namespace sonavel::test {

using Lines = std::vector<std::string>;

/// What a file holds, and what is to be found in it.
struct ReadListCase {
    std::string bytes;
    Lines stations;
    std::string diagnostics = {};
};

/// "name=address" for each station.
inline Lines stationsOf(const ParsedList& list)
{
    Lines lines;
    for (const auto& station : list.stations)
        lines.push_back(station->radio().string() + "=" + station->link().string());
    return lines;
}

/// The places of the diagnostics, counted from 1, "*" for the list as a whole; with "!" where something of it is lost.
inline std::string placesOf(const std::vector<Diagnostic>& diagnostics)
{
    std::string places;
    for (const Diagnostic& diagnostic : diagnostics) {
        places += places.empty() ? "" : " ";
        places += diagnostic.place ? std::to_string(*diagnostic.place + 1) : "*";
        places += diagnostic.severity == Diagnostic::Severity::Loss ? "!" : "";
    }
    return places;
}

} // namespace sonavel::test
