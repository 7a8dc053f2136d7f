#include "tools/ListReading.h"

#include "storage/StationListCodec.h"
#include "tools/JsonList.h"
#include "tools/ListText.h"
#include "tools/PlaylistText.h"

namespace sonavel {

std::optional<ReadList> readList(std::string bytes, ListFormat format)
{
    switch (format) {
    case ListFormat::Csv:
        return readForeignListText(std::move(bytes));
    case ListFormat::Rdb: {
        const Text text = decodeStationList(std::move(bytes));
        return text.isAbsent() ? std::nullopt : std::optional(readListText(text));
    }
    case ListFormat::Json:
        return readJsonList(bytes);
    case ListFormat::M3u:
        return readM3u(bytes);
    case ListFormat::Pls:
        return readPls(bytes);
    }
    return std::nullopt;
}

} // namespace sonavel
