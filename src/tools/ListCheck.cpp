#include "tools/ListCheck.h"

#include "base/Numbers.h"
#include "base/TextDecoding.h"
#include "model/KVStationWebRadio.h"
#include "model/StreamAddress.h"
#include "prefs/PreferenceFields.h"

#include <string_view>
#include <unordered_map>

namespace sonavel {

namespace {

Diagnostic diagnosticOnLimit(std::size_t numberOfStations, std::size_t limit)
{
    const auto digits = [](std::size_t number) { return decimalText(static_cast<std::int64_t>(number)).string(); };
    return {{}, "it has " + digits(numberOfStations) + " stations: an import stops at " + digits(limit)};
}

void checkAddress(const KVStationWebRadio& station, std::vector<Diagnostic>& diagnostics)
{
    if (station.link().isEmpty())
        diagnostics.push_back({station.idRadio(), "the address is empty"});
    else if (usableStreamAddress(station.link()).isAbsent())
        diagnostics.push_back({station.idRadio(), "the player cannot play " + inQuotes(station.link().view())});
}

} // namespace

std::vector<Diagnostic> checkedStations(const StationRecords& stations)
{
    std::vector<Diagnostic> diagnostics;
    const auto limit = static_cast<std::size_t>(PreferenceFields().PREF_MAX_NUMBER_RADIO);
    if (stations.size() > limit)
        diagnostics.push_back(diagnosticOnLimit(stations.size(), limit));
    std::unordered_map<std::string_view, std::uint64_t> firstPlaces;
    firstPlaces.reserve(stations.size());
    for (const auto& station : stations) {
        const std::string_view name = station->radio().view();
        const auto [first, isNew] = firstPlaces.emplace(name, station->idRadio());
        if (!isNew)
            diagnostics.push_back({station->idRadio(),
                "the name " + inQuotes(name) + " is that of number "
                    + decimalText(static_cast<std::int64_t>(first->second + 1)).string() + ", too"});
        if (withoutControls(name) != name)
            diagnostics.push_back({station->idRadio(), "the name " + inQuotes(name) + " has control characters"});
        checkAddress(*station, diagnostics);
    }
    return diagnostics;
}

} // namespace sonavel
