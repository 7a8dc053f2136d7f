#include "model/StreamAddress.h"

#include "base/Ascii.h"

#include <algorithm>
#include <array>

namespace sonavel {

namespace {

constexpr std::string_view schemeEnding = "://";

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

/// With its colon; 0 where the first colon is that of a port or password.
std::size_t sizeOfScheme(std::string_view address)
{
    const std::size_t colon = address.find_first_of(":/?#@");
    return colon != std::string_view::npos && address.substr(colon).starts_with(":/") ? colon + 1 : 0;
}

/// Whether a host, with user or not, has a port or none, but nothing else behind a colon.
bool endsAsAnAuthority(std::string_view authority)
{
    const std::size_t host = authority.rfind(']') + 1;
    const std::size_t colon = authority.find(':', host);
    return colon == std::string_view::npos
        || authority.find_first_not_of("0123456789", colon + 1) == std::string_view::npos;
}

/// What follows the scheme, from the host on.
std::string_view withoutUser(std::string_view rest)
{
    for (;;) {
        const std::string_view authority = rest.substr(0, rest.find_first_of("/?#"));
        std::size_t at = authority.rfind('@');
        if (at == std::string_view::npos && !endsAsAnAuthority(authority))
            at = rest.find('@');
        if (at == std::string_view::npos)
            return rest;
        rest.remove_prefix(at + 1);
    }
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
    if (address.size() > maxAddressLength || !isUsable(address)
        || std::any_of(address.begin(), address.end(), isAsciiControl) || !isValidUtf8(address))
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
    const std::size_t begin = std::min(text.find_first_not_of('/', sizeOfScheme(text)), text.size());
    const std::string_view shown = withoutUser(text.substr(begin));
    if (begin + shown.size() == text.size())
        return address;
    return std::string(text.substr(0, begin)).append(shown);
}

} // namespace sonavel
