// Fuzzes the parsers of station lists from other programs.

#include "Require.h"
#include "base/TextDecoding.h"
#include "model/KVStationWebRadio.h"
#include "model/StationListText.h"
#include "model/StreamAddress.h"
#include "tools/DatabaseFormat.h"
#include "tools/ListCheck.h"

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
    for (const ListFormat* format : allFormats) {
        if (format->serialize == nullptr)
            continue;
        const auto written = format->serialize(stations);
        require(written.has_value(), "what was read can be written");
        const StationRecords again = format == &listTextFormat ? recordsFromListText(written->bytes)
                                                               : format->parse(written->bytes).value().stations;
        require(again.size() == stations.size() - written->stationsLost, "what is written has as many stations");
        require(format == &jsonFormat || described(again) == described(stations), "they are the same");
    }
}

void checkPlaylist(const StationRecords& stations)
{
    for (const auto& station : stations) {
        require(withoutControls(station->radio().view()) == station->radio().view(), "names are of one line");
        require(!usableStreamAddress(station->link()).isAbsent(), "addresses can be played");
    }
}

void checkFormat(std::string_view bytes, const ListFormat& format)
{
    const auto list = format.parse(bytes);
    require(list || &format == &databaseFormat || &format == &jsonFormat, "a text is always read");
    if (!list)
        return;
    checkDiagnostics(list->diagnostics);
    checkDiagnostics(checkedStations(list->stations));
    for (const auto& station : list->stations)
        require(isStationName(station->radio().view()), "a list keeps the names");
    checkWritten(list->stations);
    if (&format == &m3uFormat || &format == &plsFormat)
        checkPlaylist(list->stations);
}

} // namespace
} // namespace sonavel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sonavel;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    for (const ListFormat* format : allFormats)
        checkFormat(bytes, *format);
    checkFormat(bytes, formatOfContent(bytes, allFormats));
    return 0;
}
