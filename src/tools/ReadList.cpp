#include "tools/ReadList.h"

#include "base/ForeignText.h"
#include "model/StationListText.h"
#include "playback/StreamAddress.h"

namespace sonavel {

std::string inQuotes(std::string_view bytes)
{
    constexpr std::size_t longest = 120;
    const bool hasAddress = bytes.find("://") != std::string_view::npos;
    const Text whole = hasAddress ? withoutUserInformation(bytes) : Text(bytes);
    std::string_view text = whole.view();
    const bool isLong = text.size() > longest;
    if (isLong) {
        std::size_t end = longest;
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
            --end;
        text = text.substr(0, end);
    }
    std::string result = "\"";
    return result.append(withoutControls(utf8FromForeign(text))).append(isLong ? "…\"" : "\"");
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
