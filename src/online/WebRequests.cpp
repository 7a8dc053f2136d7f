#include "online/WebRequests.h"

#include "base/Ascii.h"
#include "model/StreamAddress.h"
#include "platform/HttpClient.h"

#include <algorithm>

namespace sonavel {

namespace {

bool mayStandInAddress(char character)
{
    constexpr std::string_view allowed = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~"
                                         ":/?#[]@!$&'()*+,;=%";
    return allowed.find(character) != std::string_view::npos;
}

} // namespace

Text percentEscaped(const Text& address)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string escaped;
    for (const char character : address.view()) {
        if (mayStandInAddress(character)) {
            escaped += character;
            continue;
        }
        const auto byte = static_cast<unsigned char>(character);
        escaped += {'%', digits[byte / 16], digits[byte % 16]};
    }
    return escaped;
}

Text usableWebAddress(const Text& address)
{
    const std::string_view text = address.view();
    const bool isWeb = beginsWithIgnoringCase(text, "http://") || beginsWithIgnoringCase(text, "https://");
    const bool isEscaped = std::all_of(text.begin(), text.end(), mayStandInAddress);
    return isWeb && isEscaped && !hostOfStreamAddress(address).isAbsent() ? address : Text();
}

bool hasInternetWithSite(HttpClient& httpClient, const Text& site)
{
    HttpRequest request;
    request.address = site;
    request.cachePolicy = HttpRequest::CachePolicy::ReloadIgnoringLocalCache;
    request.timeout = std::chrono::seconds(5);
    return httpClient.sendSynchronousRequest(request).has_value();
}

} // namespace sonavel
