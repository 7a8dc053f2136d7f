#include "online/VersionRecord.h"

#include "base/Ascii.h"
#include "base/Numbers.h"
#include "platform/Bundle.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace sonavel {

namespace {

constexpr std::size_t valueCount = 8;

/// The pieces between the separators, empty ones too; the whole text when there is none.
std::vector<std::string_view> piecesOf(std::string_view text, std::string_view separator)
{
    std::vector<std::string_view> pieces;
    for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        pieces.push_back(text.substr(0, end));
        text.remove_prefix(end + separator.size());
    }
    pieces.push_back(text);
    return pieces;
}

void setVersion(VersionRecord& record, const Text& version)
{
    if (version.isAbsent())
        return;
    const auto pieces = piecesOf(version.view(), ".");
    const std::array parts{&record.MajorVersion, &record.MinorVersion, &record.BugVersion};
    for (std::size_t index = 0; index < std::min(pieces.size(), parts.size()); ++index)
        *parts[index] = version.slice(pieces[index]);
}

/// The second fields of the lines that have one, at most as many as are used.
std::vector<Text> valuesIn(const Text& response)
{
    std::vector<Text> values;
    for (const std::string_view line : piecesOf(response.view(), "\r")) {
        const std::size_t first = line.find(';');
        if (first == std::string_view::npos)
            continue;
        const std::string_view rest = line.substr(first + 1);
        values.push_back(response.slice(rest.substr(0, rest.find(';'))));
        if (values.size() == valueCount)
            break;
    }
    return values;
}

} // namespace

VersionRecord applicationVersionRecord(const Bundle& bundle)
{
    VersionRecord record;
    record.AppName = bundle.displayName.isAbsent() ? Text("Sonavel") : bundle.displayName;
    setVersion(record, bundle.shortVersion);
    if (!bundle.version.isAbsent())
        record.Build = bundle.version;
    return record;
}

std::optional<VersionRecord> serverVersionRecord(std::string_view response)
{
    if (!isAscii(response))
        return std::nullopt;
    const auto values = valuesIn(response);
    if (values.size() < valueCount)
        return std::nullopt;
    VersionRecord record;
    record.AppName = values[0];
    setVersion(record, values[1]);
    record.Build = values[2];
    record.LinkApp = values[3];
    record.LinkPage = values[4];
    record.Note = values[5];
    record.updateApp = values[6];
    record.updateData = values[7];
    return record;
}

bool isAnyNumberHigher(const VersionRecord& server, const VersionRecord& application)
{
    const auto isHigher = [&](Text VersionRecord::*number) {
        return integerValue(server.*number) > integerValue(application.*number);
    };
    return isHigher(&VersionRecord::MajorVersion) || isHigher(&VersionRecord::MinorVersion)
        || isHigher(&VersionRecord::BugVersion) || isHigher(&VersionRecord::Build);
}

Text versionText(const VersionRecord& record)
{
    std::string text = record.MajorVersion.string();
    text.append(".").append(record.MinorVersion.view()).append(".").append(record.BugVersion.view());
    return text.append(" (").append(record.Build.view()).append(")");
}

Text releaseNotes(const VersionRecord& record)
{
    std::string notes;
    for (const std::string_view note : piecesOf(record.Note.view(), "\\n"))
        notes.append("- ").append(note).append("\n");
    return notes;
}

} // namespace sonavel
