// Parsed lists as texts to compare.
#pragma once

#include "model/KVStationWebRadio.h"
#include "playlists/ListFormats.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sonavel::test {

using Lines = std::vector<std::string>;

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

/// The bytes of a list, and what is expected of it.
struct ParserCase {
    std::string bytes;
    Lines stations;
    std::string diagnostics = {};
};

inline void expectParses(const ListFormat& format, const std::vector<ParserCase>& cases)
{
    for (const ParserCase& row : cases) {
        SCOPED_TRACE(row.bytes);
        const auto list = format.parse(row.bytes);
        ASSERT_TRUE(list);
        EXPECT_EQ(stationsOf(*list), row.stations);
        EXPECT_EQ(placesOf(list->diagnostics), row.diagnostics);
        for (const Diagnostic& diagnostic : list->diagnostics)
            EXPECT_TRUE(isValidUtf8(diagnostic.what)) << diagnostic.what;
    }
}

} // namespace sonavel::test
