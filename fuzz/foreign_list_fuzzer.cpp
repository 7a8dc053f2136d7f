// Fuzzes the reading of station lists that other programs and people wrote.

#include "Require.h"
#include "base/TextDecoding.h"
#include "model/KVStationWebRadio.h"
#include "model/StationListText.h"
#include "model/StreamAddress.h"
#include "tools/ListCheck.h"
#include "tools/ListFormats.h"

#include <cstdint>

namespace sonavel {
namespace {

void checkDiagnostics(const std::vector<Diagnostic>& diagnostics)
{
    for (const Diagnostic& diagnostic : diagnostics)
        require(isValidUtf8(diagnostic.what) && withoutControls(diagnostic.what) == diagnostic.what,
            "diagnostics may be shown");
}

std::vector<std::string> described(const StationRecords& stations)
{
    std::vector<std::string> lines;
    for (const auto& station : stations)
        lines.push_back(station->radio().string() + ";" + station->link().string());
    return lines;
}

void checkWritten(const StationRecords& stations)
{
    const auto text = serializedList(stations, ListFormat::Csv);
    require(text && described(recordsFromListText(*text)) == described(stations), "a list text comes back");
    const auto database = serializedList(stations, ListFormat::Rdb);
    const auto decrypted = parseList(database.value_or(""), ListFormat::Rdb);
    require(decrypted && described(decrypted->stations) == described(stations), "a database comes back");
    const auto json = serializedList(stations, ListFormat::Json);
    require(json.has_value(), "what was read has a JSON form");
    const auto again = parseList(*json, ListFormat::Json);
    require(again && again->stations.size() == stations.size() - stationsLostBySerializing(stations, ListFormat::Json),
        "JSON loses what it says");
}

void checkPlaylist(const StationRecords& stations)
{
    for (const auto& station : stations) {
        require(withoutControls(station->radio().view()) == station->radio().view(), "names are of one line");
        require(!usableStreamAddress(station->link()).isAbsent(), "addresses can be played");
    }
}

void checkFormat(std::string_view bytes, ListFormat format)
{
    const auto list = parseList(std::string(bytes), format);
    require(list || format == ListFormat::Rdb || format == ListFormat::Json, "a text is always read");
    if (!list)
        return;
    checkDiagnostics(list->diagnostics);
    checkDiagnostics(checkedStations(list->stations));
    for (const auto& station : list->stations)
        require(isStationName(station->radio().view()), "a list keeps the names");
    checkWritten(list->stations);
    if (format == ListFormat::M3u || format == ListFormat::Pls)
        checkPlaylist(list->stations);
}

} // namespace
} // namespace sonavel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sonavel;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    for (const ListFormat format :
        {ListFormat::Csv, ListFormat::Rdb, ListFormat::Json, ListFormat::M3u, ListFormat::Pls, formatOfContent(bytes)})
        checkFormat(bytes, format);
    return 0;
}
