#include "tools/ListFormat.h"

#include "base/Ascii.h"
#include "base/ForeignText.h"
#include "model/StationListText.h"
#include "tools/ListLines.h"

#include <algorithm>
#include <array>
#include <utility>

namespace sonavel {

namespace {

constexpr std::array<std::pair<std::string_view, ListFormat>, 6> formatNames{{
    {listTextExtension, ListFormat::Csv},
    {"rdb", ListFormat::Rdb},
    {"json", ListFormat::Json},
    {"m3u", ListFormat::M3u},
    {"m3u8", ListFormat::M3u},
    {"pls", ListFormat::Pls},
}};

/// Whether it could be Base64 in lines of any length, as nothing else is: the others have a ":" at the latest in their
/// first address.
bool looksLikeBase64(std::string_view bytes)
{
    return !bytes.empty() && std::all_of(bytes.begin(), bytes.end(), [](char character) {
        return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z')
            || (character >= '0' && character <= '9') || std::string_view("+/=\r\n").find(character) < 5;
    });
}

bool looksLikeJson(std::string_view bytes)
{
    if (!bytes.starts_with('{'))
        return false;
    const std::string_view members = withoutOuterBlanks(bytes.substr(1));
    return members.starts_with('"') || members.starts_with('}');
}

/// A list of bare addresses, too. In a station line the first ";" stands before the address.
bool looksLikeM3u(std::string_view bytes)
{
    ForeignLines lines(bytes);
    for (auto line = lines.next(); line; line = lines.next()) {
        const std::string_view text = withoutOuterBlanks(*line);
        if (beginsWithIgnoringCase(text, "#EXTM3U") || beginsWithIgnoringCase(text, "#EXTINF:"))
            return true;
        if (!text.empty() && !text.starts_with('#'))
            return text.find("://") < text.find(';');
    }
    return false;
}

} // namespace

bool isWritable(ListFormat format)
{
    return format == ListFormat::Csv || format == ListFormat::Rdb || format == ListFormat::Json;
}

std::optional<ListFormat> formatNamed(std::string_view name)
{
    for (const auto& [formatName, format] : formatNames)
        if (equalsIgnoringCase(name, formatName))
            return format;
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
    if (beginsWithIgnoringCase(text, "[playlist]"))
        return ListFormat::Pls;
    if (looksLikeJson(text))
        return ListFormat::Json;
    if (looksLikeBase64(text))
        return ListFormat::Rdb;
    return looksLikeM3u(text) ? ListFormat::M3u : ListFormat::Csv;
}

} // namespace sonavel
