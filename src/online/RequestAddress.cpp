#include "online/RequestAddress.h"

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

} // namespace sonavel
