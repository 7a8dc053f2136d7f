// Which addresses may be played at all.
#pragma once

#include "base/Text.h"

#include <cstddef>

namespace sonavel {

/// Longer addresses are not played, in bytes.
inline constexpr std::size_t maxAddressLength = 8192;

/// The address to play for a station's link: the link without blanks at its ends, when it is of the form
/// "scheme://host…" with one of the schemes http, https, rtsp, rtmp and mms, in upper or lower case.
///
/// Absent for everything else, so that no link reaches a local file or the inside of a player: no other scheme, no
/// missing host, no blank or backslash in the host, no control character or invalid UTF-8 anywhere.
[[nodiscard]] Text usableStreamAddress(const Text& link);

/// The host of an address of the form "scheme://host…", without user and port; absent for another form. What to call a
/// stream that has no name.
[[nodiscard]] Text hostOfStreamAddress(const Text& address);

/// The address without the user and password that may stand before its host, for messages, tool tips and other
/// programs. It may be without a scheme or with one slash, as what a user mistyped, and the password may hold "/", "?"
/// or "#" as they are, except behind a beginning that reads as a host ("http://user/x:password@host") or as a host and
/// port ("http://user:12/3@host"): what follows it is a path there, which stays. An absent address stays absent.
[[nodiscard]] Text withoutUserInformation(const Text& address);

} // namespace sonavel
