// Property lists, the file format of preference domains.
#pragma once

#include "platform/PreferenceDomains.h"

#include <string_view>

namespace sonavel {

/// The dictionary that a property list consists of, XML or binary. Texts are kept; whole
/// numbers and decimal numbers appear in decimal form, flags as "YES" and "NO", dates in the international form. Data,
/// nested containers and texts that are not valid UTF-8 or contain zero characters are left out. Nothing when the bytes
/// are no property list, its root is no dictionary, or it is too large (above 1 MiB) or nested too deeply.
[[nodiscard]] std::optional<PreferenceDomain> domainFromPropertyList(std::string_view bytes);

/// An XML property list with the keys in order; absent texts are left out. It reads back the same as long as keys and
/// texts are valid UTF-8 without zero characters.
[[nodiscard]] std::string propertyListFromDomain(const PreferenceDomain& domain);

} // namespace sonavel
