#include "playlists/ParsedList.h"

#include "base/Ascii.h"
#include "base/TextDecoding.h"
#include "model/KVStationWebRadio.h"
#include "model/StationListText.h"
#include "model/StreamAddress.h"

namespace sonavel {

namespace {

constexpr const char* schemeEnding = "://";

/// Without user and password in any address. A field that holds one reaches to the next such field, as a password may
/// hold the separator.
std::string withoutPasswords(std::string_view line)
{
    std::string result;
    for (std::size_t address = line.find(schemeEnding); address != std::string_view::npos;
         address = line.find(schemeEnding)) {
        const std::size_t begin = line.rfind(';', address) + 1;
        const std::size_t next = line.find(schemeEnding, line.find(';', address));
        const std::size_t end = next == std::string_view::npos ? line.size() : line.rfind(';', next);
        result.append(line.substr(0, begin)).append(withoutUserInformation(line.substr(begin, end - begin)).view());
        line.remove_prefix(end);
    }
    return result.append(line);
}

/// A name that a list can keep and a window can show.
std::string tidied(std::string_view name)
{
    const Text text = withoutSeparators(withoutControls(name));
    return std::string(withoutOuterBlanks(text.view()));
}

} // namespace

std::string inQuotes(std::string_view bytes)
{
    constexpr std::size_t maxBytes = 120;
    const std::string text = withoutPasswords(bytes);
    const std::string_view shown = utf8Prefix(text, maxBytes);
    std::string result = "\"";
    return result.append(withoutControls(decodeToUtf8(shown))).append(shown.size() < text.size() ? "…\"" : "\"");
}

Text nameFromAddress(const Text& address)
{
    Text host = hostOfStreamAddress(address);
    if (isStationName(host.view()))
        return host;
    Text name = withoutUserInformation(address);
    return isStationName(name.view()) ? name : Text();
}

void addStation(ParsedList& list, std::uint64_t line, const Text& address, std::string_view title)
{
    const Text storable = withoutSeparators(address);
    const Text link = usableStreamAddress(storable);
    if (link.isAbsent()) {
        list.diagnostics.push_back(
            {line, "left out, as the player cannot play " + inQuotes(address.view()), Diagnostic::Severity::Loss});
        return;
    }
    if (!storable.isSameObject(address))
        list.diagnostics.push_back(
            {line, "\";\" is taken out of the address " + inQuotes(address.view()), Diagnostic::Severity::Loss});
    std::string name = tidied(title);
    if (!isStationName(name))
        name = tidied(nameFromAddress(link).view());
    list.stations.push_back(std::make_shared<KVStationWebRadio>(line, std::move(name), link));
}

} // namespace sonavel
