// The store of named preference domains.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"

#include <map>
#include <optional>
#include <string>

namespace sonavel {

/// One flat dictionary of texts. A stored value of another type appears as its text form.
using PreferenceDomain = std::map<std::string, Text, std::less<>>;

/// Main thread.
class PreferenceDomains : private NonCopyable {
public:
    virtual ~PreferenceDomains() = default;

    /// The stored domain; nothing when it was never stored or cannot be read.
    [[nodiscard]] virtual std::optional<PreferenceDomain> persistentDomainForName(const Text& name) = 0;

    /// Replaces the whole domain; absent values are left out. It is on disk after `synchronize`.
    virtual void setPersistentDomainForName(const PreferenceDomain& domain, const Text& name) = 0;

    /// Writes what was set. On failure the former content remains. A file that could not be read is backed up before it
    /// is replaced.
    virtual void synchronize() = 0;
};

} // namespace sonavel
