// Versions: any answer of a server, and any file of a maker.
#include "Require.h"
#include "online/VersionRecord.h"
#include "server/VersionFile.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sonavel;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const VersionRecord application;
    if (const auto record = serverVersionRecord(bytes)) {
        (void)isAnyNumberHigher(*record, application);
        require(releaseNotes(*record).view().starts_with("- "), "notes are lines with hyphens");
        require(versionText(*record).view().find(" (") != std::string_view::npos, "a version tells its build");
    }
    const auto outcome = versionAnswerFrom(bytes);
    if (const auto* answer = std::get_if<VersionAnswer>(&outcome))
        require(serverVersionRecord(answer->text).has_value(), "what is published can be read");
    return 0;
}
