// Preference domains in memory.
#pragma once

#include "platform/PreferenceDomains.h"

#include <utility>
#include <vector>

namespace sonavel {

class MemoryPreferenceDomains : public PreferenceDomains {
public:
    explicit MemoryPreferenceDomains(std::vector<std::string>& log)
        : log_(log)
    {
    }

    /// What is on disk.
    std::map<std::string, PreferenceDomain> stored;

    /// Logged as "load preferences".
    std::optional<PreferenceDomain> persistentDomainForName(const Text& name) override
    {
        log_.emplace_back("load preferences");
        const auto found = stored.find(name.string());
        return found == stored.end() ? std::nullopt : std::optional(found->second);
    }

    void setPersistentDomainForName(const PreferenceDomain& domain, const Text& name) override
    {
        unwritten_[name.string()] = domain;
    }

    /// Logged as "store preferences".
    void synchronize() override
    {
        log_.emplace_back("store preferences");
        for (auto& [name, domain] : std::exchange(unwritten_, {}))
            stored[name] = std::move(domain);
    }

private:
    std::vector<std::string>& log_;
    std::map<std::string, PreferenceDomain> unwritten_;
};

} // namespace sonavel
