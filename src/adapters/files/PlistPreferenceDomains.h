// Preference domains as property-list files in the user's preferences folder.
#pragma once

#include "platform/Files.h"
#include "platform/PreferenceDomains.h"

namespace sonavel {

/// The domain NAME is the file "Library/Preferences/NAME" under the home directory: read once, at the first
/// access, and written as XML. An existing file that is not such a domain counts as not stored; the first write keeps
/// it as a backup ("NAME.damaged.plist" for "NAME.plist") and fails when that fails.
class PlistPreferenceDomains : public PreferenceDomains {
public:
    /// Borrows the files.
    explicit PlistPreferenceDomains(Files& files);

    [[nodiscard]] std::optional<PreferenceDomain> persistentDomainForName(const Text& name) override;
    void setPersistentDomainForName(const PreferenceDomain& domain, const Text& name) override;
    /// What could not be written is written by the next call.
    void synchronize() override;

private:
    struct StoredDomain {
        std::optional<PreferenceDomain> content;
        /// The file exists, could not be read, and has no backup yet.
        bool isFileDamaged = false;
        bool isWriteDue = false;
    };

    StoredDomain& domainNamed(const Text& name);
    [[nodiscard]] UserFile fileOf(std::string_view name) const
    {
        return UserFile::inPreferences(UserFile::Kind::Preferences, files_.homeDirectory(), name);
    }
    [[nodiscard]] StoredDomain load(const Text& path) const;
    void write(const UserFile& file, StoredDomain& domain);

    Files& files_;
    std::map<std::string, StoredDomain, std::less<>> domains_; // by name
};

} // namespace sonavel
