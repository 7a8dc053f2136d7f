// The encrypted form of station lists, in which the station database and the data server hold them.
#pragma once

#include "base/Text.h"

#include <string>

namespace sonavel {

/// The list text, encrypted with the key of all station data, in Base64 in one line. Absent when the cipher fails, as
/// for 2 GiB and above.
[[nodiscard]] Text encodeStationList(std::string listText);

/// The list text that was encoded. Absent when the content cannot be decrypted or is no valid UTF-8 then. Content
/// outside ASCII need not be checked beforehand: it does not decode.
[[nodiscard]] Text decodeStationList(std::string content);

} // namespace sonavel
