#include "adapters/files/PlistPreferenceDomains.h"

#include "adapters/files/PropertyList.h"
#include "platform/Files.h"
#include "storage/Backups.h"

namespace sonavel {

PlistPreferenceDomains::PlistPreferenceDomains(Files& files)
    : files_(files)
{
}

std::optional<PreferenceDomain> PlistPreferenceDomains::persistentDomainForName(const Text& name)
{
    return domainNamed(name).content;
}

PlistPreferenceDomains::StoredDomain& PlistPreferenceDomains::domainNamed(const Text& name)
{
    const auto known = domains_.find(name.view());
    return known != domains_.end() ? known->second
                                   : domains_.emplace(name.string(), load(pathOf(name.view()))).first->second;
}

PlistPreferenceDomains::StoredDomain PlistPreferenceDomains::load(const Text& path) const
{
    StoredDomain domain;
    files_.removeUnfinishedWrite(path);
    if (const auto bytes = files_.contentsOfFile(path))
        domain.content = domainFromPropertyList(*bytes);
    domain.isFileDamaged = !domain.content && files_.fileExists(path);
    return domain;
}

void PlistPreferenceDomains::setPersistentDomainForName(const PreferenceDomain& domain, const Text& name)
{
    StoredDomain& stored = domainNamed(name);
    stored.content = domain;
    std::erase_if(*stored.content, [](const auto& item) { return item.second.isAbsent(); });
    stored.isWriteDue = true;
}

void PlistPreferenceDomains::synchronize()
{
    for (auto& [name, domain] : domains_)
        if (domain.isWriteDue)
            write(pathOf(name), domain);
}

void PlistPreferenceDomains::write(const Text& path, StoredDomain& domain)
{
    if (domain.isFileDamaged && !keepDamaged(files_, path))
        return;
    domain.isFileDamaged = false;
    files_.makeFolder(folder());
    domain.isWriteDue = !files_.writeAtomically(path, propertyListFromDomain(*domain.content));
}

Text PlistPreferenceDomains::folder() const
{
    return files_.homeDirectory().string() + "/Library/Preferences";
}

Text PlistPreferenceDomains::pathOf(std::string_view name) const
{
    return folder().string().append("/").append(name);
}

} // namespace sonavel
