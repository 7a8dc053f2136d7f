#include "tools/DatabaseFormat.h"

#include "model/StationListText.h"
#include "storage/StationListCodec.h"

namespace sonavel {

namespace {

/// Whether it could be Base64 in lines of any length. Bytes of other formats are not: they contain at least the ":" of
/// an address.
bool looksLikeBase64(std::string_view bytes)
{
    return !bytes.empty() && std::all_of(bytes.begin(), bytes.end(), [](char character) {
        return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z')
            || (character >= '0' && character <= '9') || std::string_view("+/=\r\n").find(character) < 5;
    });
}

tl::expected<ParsedList, std::string> parse(std::string_view bytes)
{
    const Text text = decodeStationList(std::string(bytes));
    if (text.isAbsent())
        return tl::unexpected<std::string>("it cannot be decrypted");
    return parseListText(text);
}

/// Without a line feed at the end, as the player writes it.
tl::expected<SerializedList, std::string> serialize(const StationRecords& stations)
{
    const Text encoded = encodeStationList(listTextFromRecords(stations, Heading::None));
    if (encoded.isAbsent())
        return tl::unexpected<std::string>("the list is too large for this format");
    return SerializedList{encoded.string()};
}

} // namespace

constinit const ListFormat databaseFormat{{"rdb"}, looksLikeBase64, parse, serialize};

} // namespace sonavel
