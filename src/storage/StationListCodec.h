// The stored forms of station lists: encrypted, as the station database and the data server hold them, and plain, as
// the legacy file and what users import.
#pragma once

#include "base/Text.h"
#include "platform/Files.h"

#include <string>
#include <string_view>

namespace sonavel {

/// Protects the station database and the published station list alike. Used as text: its first 32 characters are the
/// key.
inline constexpr std::string_view stationDatabasePassphrase =
    "A48958B191A1424E189DAB58F4695D6F01053A6CDDD18C27C1BAF9C42B91BF6E";

/// The list text, encrypted with the key of all station data, in Base64 in one line. Absent when the cipher fails, as
/// for 2 GiB and above.
[[nodiscard]] Text encodeStationList(std::string listText);

/// The list text that was encoded. Absent when the content cannot be decrypted or is no valid UTF-8 then. Content
/// outside ASCII need not be checked beforehand: it does not decode.
[[nodiscard]] Text decodeStationList(std::string content);

/// The text of a plain file, without a byte order mark at its head. Fails with `illegal_byte_sequence` when it is not
/// valid UTF-8.
[[nodiscard]] FileResult<Text> plainListText(std::string content);

} // namespace sonavel
