#include "playback/StreamAddress.h"

#include "base/Ascii.h"

#include <algorithm>
#include <array>

namespace sonavel {

namespace {

constexpr std::string_view schemeEnding = "://";

bool isControl(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x20 || byte == 0x7F;
}

bool isUsableScheme(std::string_view scheme)
{
    constexpr std::array<std::string_view, 5> usable{"http", "https", "rtsp", "rtmp", "mms"};
    return std::any_of(
        usable.begin(), usable.end(), [scheme](std::string_view name) { return equalsIgnoringCase(scheme, name); });
}

/// The host in what follows "scheme://": without user, port and path. Empty when there is none.
std::string_view hostIn(std::string_view rest)
{
    std::string_view host = rest.substr(0, rest.find_first_of("/?#"));
    host.remove_prefix(host.rfind('@') + 1);
    if (!host.starts_with('['))
        return host.substr(0, host.find(':'));
    const std::size_t end = host.find(']');
    return end == std::string_view::npos || end == 1 ? std::string_view() : host.substr(0, end + 1);
}

/// Empty where there is no "://".
std::string_view hostOf(std::string_view address)
{
    const std::size_t schemeEnd = address.find(schemeEnding);
    return schemeEnd == std::string_view::npos ? std::string_view()
                                               : hostIn(address.substr(schemeEnd + schemeEnding.size()));
}

bool isUsable(std::string_view address)
{
    const std::string_view host = hostOf(address);
    return isUsableScheme(address.substr(0, address.find(schemeEnding))) && !host.empty()
        && host.find_first_of(" \\") == std::string_view::npos;
}

} // namespace

Text usableStreamAddress(const Text& link)
{
    const std::string_view address = withoutOuterBlanks(link.view());
    if (address.size() > longestStreamAddress || !isUsable(address)
        || std::any_of(address.begin(), address.end(), isControl) || !isValidUtf8(address))
        return {};
    return link.slice(address);
}

Text hostOfStreamAddress(const Text& address)
{
    const std::string_view host = hostOf(address.view());
    return host.empty() ? Text() : address.slice(host);
}

Text withoutUserInformation(const Text& address)
{
    const std::string_view text = address.view();
    const std::size_t schemeEnd = text.find(":/");
    const std::size_t begin =
        std::min(text.find_first_not_of('/', schemeEnd == std::string_view::npos ? 0 : schemeEnd + 1), text.size());
    const std::string_view authority = text.substr(begin, text.find_first_of("/?#", begin) - begin);
    const std::size_t at = authority.rfind('@');
    if (at == std::string_view::npos)
        return address;
    return std::string(text.substr(0, begin)).append(text.substr(begin + at + 1));
}

} // namespace sonavel
