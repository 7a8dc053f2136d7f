#include "tools/ListWriting.h"

#include "model/StationList.h"
#include "model/StationListText.h"
#include "storage/StationListCodec.h"

#include <unordered_set>

namespace sonavel {

namespace {

/// As files are, though not the database.
std::optional<std::string> contentOf(const Text& text)
{
    return text.isAbsent() ? std::nullopt : std::optional(text.string());
}

std::optional<std::string> jsonOf(const StationRecords& stations)
{
    StationList list;
    list.setListRadio(stations);
    const Text json = list.convertRadioListToJSON();
    return json.isAbsent() ? std::nullopt : std::optional(json.string() + "\n");
}

} // namespace

std::optional<std::string> writtenList(const StationRecords& stations, ListFormat format)
{
    switch (format) {
    case ListFormat::Csv:
        return listTextFromRecords(stations, Heading::FieldNames);
    case ListFormat::Rdb:
        return contentOf(encodeStationList(listTextFromRecords(stations, Heading::None)));
    case ListFormat::Json:
        return jsonOf(stations);
    case ListFormat::M3u:
    case ListFormat::Pls:
        break;
    }
    return std::nullopt;
}

std::size_t stationsLostInWriting(const StationRecords& stations, ListFormat format)
{
    if (format != ListFormat::Json)
        return 0;
    std::unordered_set<std::string_view> addresses;
    for (const auto& station : stations)
        addresses.insert(station->link().view());
    return stations.size() - addresses.size();
}

} // namespace sonavel
