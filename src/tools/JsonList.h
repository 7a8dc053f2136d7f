// The JSON form of a station list, read.
#pragma once

#include "tools/ReadList.h"

#include <optional>
#include <string_view>

namespace sonavel {

/// Reads a JSON object in UTF-8: each member's name is an address, its value the station's name. The stations come in
/// the order of the members, repeated addresses too.
///
/// Members whose value is no text are left out. ";" and carriage returns are taken out of names and addresses, and a
/// name that a list does not keep is replaced by what its address tells, or its station left out; these are findings.
/// Nothing when the bytes are not JSON, or not an object.
[[nodiscard]] std::optional<ReadList> readJsonList(std::string_view bytes);

} // namespace sonavel
