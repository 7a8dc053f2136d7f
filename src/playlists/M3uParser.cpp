#include "base/Ascii.h"
#include "base/TextDecoding.h"
#include "playlists/Parsers.h"
#include "playlists/TextLines.h"

namespace sonavel {

namespace {

/// The title in what follows "#EXTINF:", a length and attributes: all after the first comma outside quotes, or the
/// first at all where a quote is not closed. Empty without a comma.
std::string_view titleAfterAttributes(std::string_view text)
{
    bool isQuoted = false;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (text[place] == '"')
            isQuoted = !isQuoted;
        else if (text[place] == ',' && !isQuoted)
            return text.substr(place + 1);
    }
    const std::size_t comma = text.find(',');
    return comma == std::string_view::npos ? std::string_view() : text.substr(comma + 1);
}

} // namespace

ParsedList parseM3u(std::string_view bytes)
{
    constexpr std::string_view information = "#EXTINF:";
    ParsedList list;
    std::string title;
    TextLines lines(withoutByteOrderMark(bytes));
    while (const auto line = lines.next()) {
        const std::string decoded = decodeToUtf8(*line);
        const std::string_view text = withoutOuterBlanks(decoded);
        if (beginsWithIgnoringCase(text, information)) {
            title = titleAfterAttributes(text.substr(information.size()));
        } else if (!text.empty() && !text.starts_with('#')) {
            addStation(list, lines.number(), text, title);
            title.clear();
        }
    }
    return list;
}

/// A list of bare addresses, too. In a station line the first ";" stands before the address.
bool looksLikeM3u(std::string_view bytes)
{
    TextLines lines(bytes);
    for (auto line = lines.next(); line; line = lines.next()) {
        const std::string_view text = withoutOuterBlanks(*line);
        if (beginsWithIgnoringCase(text, "#EXTM3U") || beginsWithIgnoringCase(text, "#EXTINF:"))
            return true;
        if (!text.empty() && !text.starts_with('#'))
            return text.find("://") < text.find(';');
    }
    return false;
}

} // namespace sonavel
