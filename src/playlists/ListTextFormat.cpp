#include "base/TextDecoding.h"
#include "model/KVStationWebRadio.h"
#include "model/StationListText.h"
#include "playlists/ListFormats.h"

#include <algorithm>

namespace sonavel {

namespace {

constexpr auto loss = Diagnostic::Severity::Loss;
constexpr auto note = Diagnostic::Severity::Note;

bool isHeading(const StationListLine& line)
{
    const Text heading = KVStationWebRadio::returnPropertyNameListDefault();
    return line.number == 0 && heading.view().substr(0, heading.view().size() - 1) == line.text;
}

Diagnostic diagnosticOnSkipped(const StationListLine& line)
{
    const std::string_view name = line.text.substr(0, line.text.find(';'));
    if (line.text.empty())
        return {line.number, "skipped, as it is empty", note};
    if (name.size() == line.text.size())
        return {line.number, "skipped, as it has no \";\": " + inQuotes(line.text), loss};
    if (name.empty())
        return {line.number, "skipped, as the name is empty: " + inQuotes(line.text), loss};
    return {line.number, "skipped, as no list keeps the name " + inQuotes(name), loss};
}

/// Makes every line end a carriage return, where that is possible without guessing.
void normalizeLineEnds(std::string& text, std::vector<Diagnostic>& diagnostics)
{
    const auto returns = std::count(text.begin(), text.end(), '\r');
    const auto feeds = std::count(text.begin(), text.end(), '\n');
    if (feeds == 0)
        return;
    if (returns == 0) {
        std::replace(text.begin(), text.end(), '\n', '\r');
        diagnostics.push_back({{}, "its lines end with line feeds: to the player it is one single line", note});
        return;
    }
    std::string normalized;
    normalized.reserve(text.size());
    for (const char character : text)
        if (character != '\n' || !normalized.ends_with('\r'))
            normalized += character;
    if (text.size() - normalized.size() != static_cast<std::size_t>(feeds))
        return; // a line feed in the midst of a line, as the names and addresses of stations may hold
    text = std::move(normalized);
    diagnostics.push_back({{},
        "its lines end with carriage return and line feed: to the player each name begins with a line feed", note});
}

/// Gives every line in UTF-8.
std::string decodedLines(std::string_view text, std::vector<Diagnostic>& diagnostics)
{
    std::string decoded;
    for (StationListReader reader(text); const auto line = reader.next();) {
        if (line->number > 0)
            decoded += '\r';
        decoded += decodeToUtf8(line->text);
        if (!isValidUtf8(line->text))
            diagnostics.push_back({line->number, "not UTF-8, read as Windows-1252: " + inQuotes(line->text), loss});
    }
    return decoded;
}

/// Reads more than the player does, so that a list can be repaired by writing it again. Each of these is diagnosed: a
/// byte order mark; in a text without any carriage return the lines end at line feeds; where all line feeds follow
/// carriage returns, they belong to the line ends; lines that are not UTF-8 are read as Windows-1252.
tl::expected<ParsedList, std::string> parseFile(std::string_view bytes)
{
    std::vector<Diagnostic> diagnostics;
    std::string text(withoutByteOrderMark(bytes));
    if (text.size() < bytes.size())
        diagnostics.push_back({{}, "it begins with a byte order mark", note});
    normalizeLineEnds(text, diagnostics);
    if (!isValidUtf8(text)) {
        diagnostics.push_back({{}, "it is not valid UTF-8: the player does not read it at all", note});
        text = decodedLines(text, diagnostics);
    }
    ParsedList list = parseListText(std::move(text));
    list.diagnostics.insert(list.diagnostics.begin(), diagnostics.begin(), diagnostics.end());
    return list;
}

tl::expected<SerializedList, std::string> serialize(const StationRecords& stations)
{
    return SerializedList{listTextFromRecords(stations, Heading::FieldNames)};
}

} // namespace

ParsedList parseListText(const Text& text)
{
    ParsedList list;
    StationListReader reader(text.view());
    for (auto line = reader.next(); line;) {
        auto following = reader.next();
        if (line->isStation) {
            list.stations.push_back(
                std::make_shared<KVStationWebRadio>(line->number, text.slice(line->name), text.slice(line->link)));
            if (line->name.size() + 1 + line->link.size() < line->text.size())
                list.diagnostics.push_back(
                    {line->number, "what follows the second field is ignored: " + inQuotes(line->text), loss});
        } else if (!isHeading(*line) && (following || !line->text.empty())) {
            list.diagnostics.push_back(diagnosticOnSkipped(*line));
        }
        line = following;
    }
    return list;
}

/// The default: what any text is read as.
constinit const ListFormat listTextFormat{
    {listTextExtension}, [](std::string_view /*bytes*/) { return false; }, parseFile, serialize};

} // namespace sonavel
