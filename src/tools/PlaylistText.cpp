#include "tools/PlaylistText.h"

#include "base/Ascii.h"
#include "base/ForeignText.h"
#include "model/KVStationWebRadio.h"
#include "model/StationListText.h"
#include "model/StreamAddress.h"
#include "tools/ListLines.h"

#include <charconv>
#include <map>

namespace sonavel {

namespace {

constexpr auto costsContent = Finding::Cost::Content;

/// A name as a list can keep it and a window show it.
std::string tidied(std::string_view name)
{
    const Text text = withoutSeparators(withoutControls(name));
    return std::string(withoutOuterBlanks(text.view()));
}

/// Adds the station that an address and a title, both in UTF-8, make.
void addStation(ReadList& list, std::uint64_t line, const Text& address, std::string_view title)
{
    const Text storable = withoutSeparators(address);
    const Text link = usableStreamAddress(storable);
    if (link.isAbsent()) {
        list.findings.push_back(
            {line, "left out, as the player cannot play " + inQuotes(address.view()), costsContent});
        return;
    }
    if (!storable.isSameObject(address))
        list.findings.push_back({line, "\";\" is taken out of the address " + inQuotes(address.view()), costsContent});
    std::string name = tidied(title);
    if (!isStationName(name))
        name = tidied(nameFromAddress(link).view());
    list.stations.push_back(std::make_shared<KVStationWebRadio>(line, std::move(name), link));
}

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

/// Address and title that share a number, each with its line.
struct PlsEntry {
    struct Value {
        std::uint64_t line = 0;
        std::string text;
    };
    std::optional<Value> file;
    std::optional<Value> title;
};

/// The number in a key such as "File12"; nothing when the key is not `word` and a number.
std::optional<std::uint64_t> numberInKey(std::string_view key, std::string_view word)
{
    if (!beginsWithIgnoringCase(key, word))
        return std::nullopt;
    const char* const end = key.data() + key.size();
    std::uint64_t number = 0;
    const auto result = std::from_chars(key.data() + word.size(), end, number);
    return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

class PlsReader {
public:
    ReadList read(std::string_view bytes)
    {
        ForeignLines lines(withoutByteOrderMark(bytes));
        while (const auto line = lines.next())
            readLine(lines.number(), utf8FromForeign(*line));
        for (const auto& [number, entry] : entries_)
            addEntry(entry);
        return std::move(list_);
    }

private:
    void readLine(std::uint64_t number, std::string_view line)
    {
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos)
            return;
        const std::string_view key = withoutOuterBlanks(line.substr(0, equals));
        const std::string_view value = withoutOuterBlanks(line.substr(equals + 1));
        if (const auto entry = numberInKey(key, "File"))
            set(entries_[*entry].file, {number, std::string(value)});
        else if (const auto titled = numberInKey(key, "Title"))
            set(entries_[*titled].title, {number, std::string(value)});
    }

    void set(std::optional<PlsEntry::Value>& present, PlsEntry::Value value)
    {
        if (present)
            list_.findings.push_back({value.line, "left out, as an earlier line has the same key", costsContent});
        else
            present = std::move(value);
    }

    void addEntry(const PlsEntry& entry)
    {
        if (entry.file)
            addStation(list_, entry.file->line, entry.file->text, entry.title ? entry.title->text : "");
        else
            list_.findings.push_back({entry.title->line, "left out, as the title has no address", costsContent});
    }

    ReadList list_;
    std::map<std::uint64_t, PlsEntry> entries_;
};

} // namespace

ReadList readM3u(std::string_view bytes)
{
    constexpr std::string_view information = "#EXTINF:";
    ReadList list;
    std::string title;
    ForeignLines lines(withoutByteOrderMark(bytes));
    while (const auto line = lines.next()) {
        const std::string decoded = utf8FromForeign(*line);
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

ReadList readPls(std::string_view bytes)
{
    return PlsReader().read(bytes);
}

} // namespace sonavel
