// Fuzzes what is made of a data server's response about the newest version.

#include "Require.h"
#include "base/Moment.h"
#include "online/VersionRecord.h"
#include "online/WebRequests.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

namespace sonavel {
namespace {

constexpr std::size_t valueCount = 8;

std::array<Text, 11> textsOf(const VersionRecord& record)
{
    return {record.AppName, record.MajorVersion, record.MinorVersion, record.BugVersion, record.StageCode, record.Build,
        record.LinkApp, record.LinkPage, record.Note, record.updateApp, record.updateData};
}

bool isAscii(std::string_view bytes)
{
    return std::none_of(bytes.begin(), bytes.end(),
        [](char character) { return (static_cast<unsigned char>(character) & 0x80U) != 0; });
}

std::size_t linesWithFields(std::string_view response)
{
    std::size_t lines = 0;
    bool hasField = false;
    for (const char character : response) {
        lines += character == ';' && !hasField ? 1 : 0;
        hasField = character != '\r' && (hasField || character == ';');
    }
    return lines;
}

void checkTexts(const VersionRecord& record)
{
    for (const Text& text : textsOf(record)) {
        require(!text.isAbsent(), "a usable response gives every value");
        require(text.view().find_first_of(";\r") == std::string_view::npos, "values have no separator");
    }
    for (const Text& number : {record.MajorVersion, record.MinorVersion, record.BugVersion})
        require(number.view().find('.') == std::string_view::npos, "each number of the version stands for itself");
    require(!isAnyNumberHigher(record, record), "no version is newer than itself");
    require(versionText(record).view().ends_with(" (" + record.Build.string() + ")"), "the text ends in the build");
}

void checkNotes(const VersionRecord& record)
{
    const std::string_view note = record.Note.view();
    std::size_t separators = 0;
    for (std::size_t found = note.find("\\n"); found != std::string_view::npos; found = note.find("\\n", found + 2))
        ++separators;
    const std::string notes = releaseNotes(record).string();
    require(notes.starts_with("- ") && notes.ends_with('\n'), "notes are lines after hyphens");
    require(notes.size() == note.size() - 2 * separators + 3 * (separators + 1), "every note is a line, none is lost");
}

void checkAddressAndDates(const VersionRecord& record)
{
    const Text page = usableWebAddress(record.LinkPage);
    require(page.isAbsent() || (page == record.LinkPage && percentEscaped(page) == page && isAscii(page.view())),
        "a page that is opened is the server's own, with nothing to escape");
    for (const Text& date : {record.updateApp, record.updateData}) {
        const auto moment = momentFromInternationalForm(date);
        // An offset can move the very first and the very last day into a year that has no text.
        const auto again = moment ? momentFromInternationalForm(internationalForm(*moment)) : std::nullopt;
        require(!again || again == moment, "a date is read as it was written");
    }
}

void checkOtherLineEnds(std::string_view response, const VersionRecord& record)
{
    std::string withLineFeeds;
    for (const char character : response)
        withLineFeeds.append(1, character).append(character == '\r' ? "\n" : "");
    const auto again = serverVersionRecord(withLineFeeds);
    require(again && textsOf(*again) == textsOf(record), "line feeds after the carriage returns change nothing");
    const auto longer = serverVersionRecord(std::string(response) + "\rmore;x");
    require(longer && textsOf(*longer) == textsOf(record), "lines after the eighth change nothing");
}

} // namespace
} // namespace sonavel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sonavel;
    const std::string_view response(reinterpret_cast<const char*>(data), size);
    const auto record = serverVersionRecord(response);
    require(record.has_value() == (isAscii(response) && linesWithFields(response) >= valueCount),
        "a response is usable when it is ASCII and has its values");
    if (!record)
        return 0;
    checkTexts(*record);
    checkNotes(*record);
    checkAddressAndDates(*record);
    checkOtherLineEnds(response, *record);
    return 0;
}
