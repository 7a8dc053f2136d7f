#include "storage/StationListCodec.h"

#include "storage/AESCrypt.h"
#include "storage/Passphrase.h"

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

} // namespace sonavel
