#include "tools/ListFormats.h"

#include "base/Ascii.h"
#include "base/TextDecoding.h"
#include "model/StationList.h"
#include "model/StationListText.h"
#include "storage/StationListCodec.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace sonavel {

namespace {

using Parsed = tl::expected<ParsedList, std::string>;
using Serialized = std::optional<std::string>;

Parsed parseDatabase(std::string bytes)
{
    const Text text = decodeStationList(std::move(bytes));
    if (text.isAbsent())
        return tl::unexpected(std::string("it cannot be decrypted"));
    return parseListText(text);
}

Serialized presentText(const Text& text)
{
    return text.isAbsent() ? std::nullopt : std::optional(text.string());
}

Serialized csvOf(const StationRecords& stations)
{
    return listTextFromRecords(stations, Heading::FieldNames);
}

/// Without a line feed at the end, as the player writes it.
Serialized databaseOf(const StationRecords& stations)
{
    return presentText(encodeStationList(listTextFromRecords(stations, Heading::None)));
}

Serialized jsonOf(const StationRecords& stations)
{
    StationList list;
    list.setListRadio(stations);
    const Text json = list.convertRadioListToJSON();
    return json.isAbsent() ? std::nullopt : std::optional(json.string() + "\n");
}

/// Whether it could be Base64 in lines of any length, as nothing else is: the others have a ":" at the latest in their
/// first address.
bool looksLikeBase64(std::string_view bytes)
{
    return !bytes.empty() && std::all_of(bytes.begin(), bytes.end(), [](char character) {
        return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z')
            || (character >= '0' && character <= '9') || std::string_view("+/=\r\n").find(character) < 5;
    });
}

struct Row {
    ListFormat format;
    std::array<std::string_view, 2> names; ///< in small letters, which are extensions too
    bool (*looksLike)(std::string_view bytes);
    Parsed (*parse)(std::string bytes);
    Serialized (*serialize)(const StationRecords& stations); ///< null for a format that is only read
};

/// In the order in which a content of unknown format is compared with them; any text may be the last.
constexpr std::array rows{
    Row{ListFormat::Pls, {"pls"}, looksLikePls, [](std::string bytes) -> Parsed { return parsePls(bytes); }, nullptr},
    Row{ListFormat::Json, {"json"}, looksLikeJson, [](std::string bytes) { return parseJson(bytes); }, jsonOf},
    Row{ListFormat::Rdb, {"rdb"}, looksLikeBase64, parseDatabase, databaseOf},
    Row{ListFormat::M3u, {"m3u", "m3u8"}, looksLikeM3u, [](std::string bytes) -> Parsed { return parseM3u(bytes); },
        nullptr},
    Row{ListFormat::Csv, {listTextExtension}, [](std::string_view) { return true; },
        [](std::string bytes) -> Parsed { return parseListTextFile(std::move(bytes)); }, csvOf},
};

const Row& rowOf(ListFormat format)
{
    return *std::find_if(rows.begin(), rows.end(), [format](const Row& row) { return row.format == format; });
}

} // namespace

bool isWritable(ListFormat format)
{
    return rowOf(format).serialize != nullptr;
}

std::optional<ListFormat> formatNamed(std::string_view name)
{
    for (const Row& row : rows)
        for (const std::string_view present : row.names)
            if (!present.empty() && equalsIgnoringCase(name, present))
                return row.format;
    return std::nullopt;
}

std::optional<ListFormat> formatOfPath(std::string_view path)
{
    const std::string_view name = path.substr(path.rfind('/') + 1);
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? std::nullopt : formatNamed(name.substr(dot + 1));
}

ListFormat formatOfContent(std::string_view bytes)
{
    const std::string_view text = withoutOuterBlanks(withoutByteOrderMark(bytes));
    return std::find_if(rows.begin(), rows.end(), [text](const Row& row) { return row.looksLike(text); })->format;
}

tl::expected<ParsedList, std::string> parseList(std::string bytes, ListFormat format)
{
    return rowOf(format).parse(std::move(bytes));
}

std::optional<std::string> serializedList(const StationRecords& stations, ListFormat format)
{
    return isWritable(format) ? rowOf(format).serialize(stations) : std::nullopt;
}

std::size_t stationsLostBySerializing(const StationRecords& stations, ListFormat format)
{
    if (format != ListFormat::Json)
        return 0;
    std::unordered_set<std::string_view> addresses;
    for (const auto& station : stations)
        addresses.insert(station->link().view());
    return stations.size() - addresses.size();
}

} // namespace sonavel
