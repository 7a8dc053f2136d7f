// A list that was read, as lines to compare.
#pragma once

#include "model/KVStationWebRadio.h"
#include "tools/ReadList.h"

#include <string>
#include <vector>

namespace sonavel::test {

using Lines = std::vector<std::string>;

/// What a file holds, and what is to be found in it.
struct ReadListCase {
    std::string bytes;
    Lines stations;
    std::string findings = {};
};

/// "name=address" for each station.
inline Lines stationsOf(const ReadList& list)
{
    Lines lines;
    for (const auto& station : list.stations)
        lines.push_back(station->radio().string() + "=" + station->link().string());
    return lines;
}

/// The places of the findings, counted from 1, "*" for the list as a whole; with "!" where something of it is lost.
inline std::string placesOf(const std::vector<Finding>& findings)
{
    std::string places;
    for (const Finding& finding : findings) {
        places += places.empty() ? "" : " ";
        places += finding.place ? std::to_string(*finding.place + 1) : "*";
        places += finding.cost == Finding::Cost::Content ? "!" : "";
    }
    return places;
}

} // namespace sonavel::test
