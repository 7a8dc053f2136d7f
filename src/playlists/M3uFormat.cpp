#include "base/Ascii.h"
#include "base/TextDecoding.h"
#include "playlists/ListFormats.h"
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

tl::expected<ParsedList, std::string> parse(std::string_view bytes)
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

/// So does a list of bare addresses. In a line of list text the first ";" comes before the address.
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

} // namespace

/// An M3U playlist: an address in each line, and "#EXTINF:…,Title" in a line before it for its name. Attributes behind
/// "#EXTINF:" are skipped, commas in their quotes included; other lines that begin with "#" are ignored.
///
/// This and PLS have in common: Lines end with CR, LF or both. A line that is not UTF-8 is read as Windows-1252. What
/// the player could not play, such as a path or a "file:" address, is left out. Blanks around a name are removed, and
/// control characters within become blanks. A station without a name, or with one that a list does not keep, is named
/// after the host of its address. ";" is removed from names and addresses, as a list text cannot hold it. What was left
/// out, and each changed address, is diagnosed.
constinit const ListFormat m3uFormat{{"m3u", "m3u8"}, looksLikeM3u, parse};

} // namespace sonavel
