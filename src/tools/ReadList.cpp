#include "tools/ReadList.h"

#include "base/ForeignText.h"
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

} // namespace

std::string inQuotes(std::string_view bytes)
{
    constexpr std::size_t longest = 120;
    const std::string text = withoutPasswords(bytes);
    const std::string_view shown = utf8Prefix(text, longest);
    std::string result = "\"";
    return result.append(withoutControls(utf8FromForeign(shown))).append(shown.size() < text.size() ? "…\"" : "\"");
}

Text nameFromAddress(const Text& address)
{
    Text host = hostOfStreamAddress(address);
    if (isStationName(host.view()))
        return host;
    Text name = withoutUserInformation(address);
    return isStationName(name.view()) ? name : Text();
}

} // namespace sonavel
