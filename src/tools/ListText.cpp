#include "tools/ListText.h"

#include "base/ForeignText.h"
#include "model/KVStationWebRadio.h"
#include "model/StationListText.h"

#include <algorithm>

namespace sonavel {

namespace {

constexpr auto costsContent = Finding::Cost::Content;
constexpr auto costsNothing = Finding::Cost::Nothing;

bool isHeading(const StationListLine& line)
{
    const Text heading = KVStationWebRadio::returnPropertyNameListDefault();
    return line.number == 0 && heading.view().substr(0, heading.view().size() - 1) == line.text;
}

Finding findingOnSkipped(const StationListLine& line)
{
    const std::string_view name = line.text.substr(0, line.text.find(';'));
    if (line.text.empty())
        return {line.number, "skipped, as it is empty", costsNothing};
    if (name.size() == line.text.size())
        return {line.number, "skipped, as it has no \";\": " + inQuotes(line.text), costsContent};
    if (name.empty())
        return {line.number, "skipped, as the name is empty: " + inQuotes(line.text), costsContent};
    return {line.number, "skipped, as no list keeps the name " + inQuotes(name), costsContent};
}

/// Makes every line end a carriage return, where that is possible without guessing.
void mendLineEnds(std::string& text, std::vector<Finding>& findings)
{
    const auto returns = std::count(text.begin(), text.end(), '\r');
    const auto feeds = std::count(text.begin(), text.end(), '\n');
    if (feeds == 0)
        return;
    if (returns == 0) {
        std::replace(text.begin(), text.end(), '\n', '\r');
        findings.push_back({{}, "its lines end with line feeds: to the player it is one single line", costsNothing});
        return;
    }
    std::string mended;
    mended.reserve(text.size());
    for (const char character : text)
        if (character != '\n' || !mended.ends_with('\r'))
            mended += character;
    if (text.size() - mended.size() != static_cast<std::size_t>(feeds))
        return; // a line feed in the midst of a line, as the names and addresses of stations may hold
    text = std::move(mended);
    findings.push_back(
        {{}, "its lines end with carriage return and line feed: to the player each name begins with a line feed",
            costsNothing});
}

/// Gives every line in UTF-8.
std::string decodedLines(std::string_view text, std::vector<Finding>& findings)
{
    std::string decoded;
    for (StationListReader reader(text); const auto line = reader.next();) {
        if (line->number > 0)
            decoded += '\r';
        decoded += utf8FromForeign(line->text);
        if (!isValidUtf8(line->text))
            findings.push_back(
                {line->number, "not UTF-8, read as Windows-1252: " + inQuotes(line->text), costsContent});
    }
    return decoded;
}

} // namespace

ReadList readListText(const Text& text)
{
    ReadList list;
    StationListReader reader(text.view());
    for (auto line = reader.next(); line;) {
        auto following = reader.next();
        if (line->isStation) {
            list.stations.push_back(
                std::make_shared<KVStationWebRadio>(line->number, text.slice(line->name), text.slice(line->link)));
            if (line->name.size() + 1 + line->link.size() < line->text.size())
                list.findings.push_back(
                    {line->number, "what follows the second field is ignored: " + inQuotes(line->text), costsContent});
        } else if (!isHeading(*line) && (following || !line->text.empty())) {
            list.findings.push_back(findingOnSkipped(*line));
        }
        line = following;
    }
    return list;
}

ReadList readForeignListText(std::string bytes)
{
    std::vector<Finding> findings;
    if (const auto text = withoutByteOrderMark(bytes); text.size() < bytes.size()) {
        bytes.erase(0, bytes.size() - text.size());
        findings.push_back({{}, "it begins with a byte order mark", costsNothing});
    }
    mendLineEnds(bytes, findings);
    if (!isValidUtf8(bytes)) {
        findings.push_back({{}, "it is not valid UTF-8: the player does not read it at all", costsNothing});
        bytes = decodedLines(bytes, findings);
    }
    ReadList list = readListText(std::move(bytes));
    list.findings.insert(list.findings.begin(), findings.begin(), findings.end());
    return list;
}

} // namespace sonavel
