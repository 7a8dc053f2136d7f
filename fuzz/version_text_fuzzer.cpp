// Fuzzes the file in which the publisher states the newest version, all the way to the player.

#include "Require.h"
#include "base/Moment.h"
#include "online/VersionRecord.h"
#include "online/WebRequests.h"
#include "server/VersionText.h"

#include <cstdint>

namespace sonavel {
namespace {

PublishedVersion defaults()
{
    return {"0.1.0", "1", "", "", {"not published"}, "2026-11-01 00:00:00 +0000", "2026-11-01 00:00:00 +0000"};
}

void checkError(const ParseError& error)
{
    require(error.line > 0, "lines are counted from 1");
    require(!error.why.empty() && error.why.size() < 500, "an error is reported shortly");
    require(error.why.find_first_of("\r\n\x1B") == std::string::npos, "an error is one line, and harmless to show");
}

/// Whatever is accepted reaches the player as it was stated.
void checkWay(const PublishedVersion& published)
{
    const auto record = serverVersionRecord(versionResponse(published, "http://127.0.0.1/"));
    require(record.has_value(), "what is published is a usable response");
    require(record->Build == Text(published.build), "the build arrives");
    require(versionText(*record).view().starts_with(published.version), "the version arrives");
    require(record->updateApp == Text(published.released), "the date of the version arrives");
    require(record->updateData == Text(published.listChanged), "the date of the list arrives");
    require(momentFromInternationalForm(record->updateData).has_value(), "the date of the list is one");
    require(published.page.empty() || record->LinkPage == Text(published.page), "the page arrives");
    require(!usableWebAddress(record->LinkPage).isAbsent(), "the player opens the page");

    std::string notes = published.notes.empty() ? "- \n" : "";
    for (const std::string& note : published.notes)
        notes.append("- ").append(note).append("\n");
    require(releaseNotes(*record) == Text(notes), "every note is shown as a line");
}

} // namespace
} // namespace sonavel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sonavel;
    const auto version = parseVersionText({reinterpret_cast<const char*>(data), size}, defaults());
    if (version)
        checkWay(*version);
    else
        checkError(version.error());
    return 0;
}
