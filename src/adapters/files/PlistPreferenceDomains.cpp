#include "adapters/files/PlistPreferenceDomains.h"

#include "adapters/files/PropertyList.h"
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
                                   : domains_.emplace(name.string(), load(fileOf(name.view()).path)).first->second;
}

PlistPreferenceDomains::StoredDomain PlistPreferenceDomains::load(const Text& path) const
{
    StoredDomain domain;
    files_.removeUnfinishedWrite(path);
    const auto bytes = files_.contentsOfFile(path);
    if (bytes)
        domain.content = domainFromPropertyList(*bytes);
    domain.isFileDamaged = bytes ? !domain.content : !isAbsent(bytes.error());
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
            write(fileOf(name), domain);
}

void PlistPreferenceDomains::write(const UserFile& file, StoredDomain& domain)
{
    if (domain.isFileDamaged)
        if (const auto kept = keepDamaged(files_, file.path); !kept)
            return files_.reportUnsaved(file, kept.error());
    domain.isFileDamaged = false;
    domain.isWriteDue = !files_.makeFolderOf(file).and_then(
        [&] { return files_.writeAtomically(file, propertyListFromDomain(*domain.content)); });
}

} // namespace sonavel
