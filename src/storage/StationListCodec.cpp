#include "storage/StationListCodec.h"

#include "base/TextDecoding.h"
#include "storage/AESCrypt.h"

#include <utility>

namespace sonavel {

Text encodeStationList(std::string listText)
{
    const auto bytes = AES256EncryptWithKey(Bytes{std::move(listText)}, stationDatabasePassphrase);
    return bytes ? base64Encoding(*bytes) : Text();
}

Text decodeStationList(std::string content)
{
    return AES256DecryptWithKey(Text(std::move(content)), stationDatabasePassphrase);
}

FileResult<Text> plainListText(std::string content)
{
    if (!isValidUtf8(content))
        return tl::unexpected(std::make_error_code(std::errc::illegal_byte_sequence));
    const Text text(std::move(content));
    return text.slice(withoutByteOrderMark(text.view()));
}

} // namespace sonavel
