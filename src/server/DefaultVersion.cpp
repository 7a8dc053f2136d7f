#include "server/DefaultVersion.h"

#include "base/Numbers.h"
#include "server/DataServer.h"
#include "server/Stations.h"

namespace sonavel {

namespace {

std::string numberAfter(const std::string& number)
{
    return decimalText(integerValue(number) + 1).string();
}

} // namespace

PublishedVersion defaultVersion(const DataServerSettings& settings)
{
    PublishedVersion version;
    version.version = settings.version;
    version.build = settings.build;
    version.released = starterStationsChanged;
    version.listChanged = starterStationsChanged;
    if (settings.offer == DataServerSettings::Offer::NewerVersion) {
        version.version = numberAfter(settings.version) + ".0.0";
        version.build = numberAfter(settings.build);
        version.notes = {"This version exists in the demo alone.",
            "The notes of a release stand here, a line for each.",
            "Download opens the page of the version in the web browser."};
    }
    return version;
}

} // namespace sonavel
