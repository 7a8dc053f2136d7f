#include "adapters/files/PlistPreferenceDomains.h"

#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

const Text name = "Mertzan-Software.Sonavel.plist";
const PreferenceDomain some{{"isAutoPlay", "YES"}, {"maxLenghtRadioName", "60"}};
const PreferenceDomain other{{"isAutoPlay", "NO"}};

class PlistPreferenceDomainsTest : public testing::Test {
protected:
    [[nodiscard]] std::optional<PreferenceDomain> storedOnDisk()
    {
        return PlistPreferenceDomains(files).persistentDomainForName(name);
    }

    static void store(PlistPreferenceDomains& domains, const PreferenceDomain& domain)
    {
        domains.setPersistentDomainForName(domain, name);
        domains.synchronize();
    }

    MemoryFiles files;
    const std::string path = files.inPreferences(name.view());
    const std::string copy = files.inPreferences("Mertzan-Software.Sonavel.damaged.plist");
};

TEST_F(PlistPreferenceDomainsTest, WhatAKilledWriteLeftGoesWhenTheDomainIsRead)
{
    files.files[files.inPreferences(".Mertzan-Software.Sonavel.plist.saving")] = "unfin";
    files.files[files.inPreferences(".another.plist.saving")] = "another's";
    EXPECT_EQ(storedOnDisk(), std::nullopt);
    EXPECT_EQ(files.files.size(), 1);
}

TEST_F(PlistPreferenceDomainsTest, ADomainIsStoredOnceItIsSynchronized)
{
    PlistPreferenceDomains domains(files);
    EXPECT_EQ(domains.persistentDomainForName(name), std::nullopt);
    PreferenceDomain withAbsent = some;
    withAbsent["defaultStation"] = Text();
    domains.setPersistentDomainForName(withAbsent, name);
    EXPECT_EQ(domains.persistentDomainForName(name), some);
    EXPECT_EQ(storedOnDisk(), std::nullopt);
    domains.synchronize();
    EXPECT_EQ(storedOnDisk(), some);
    EXPECT_EQ(files.files.size(), 1);
    EXPECT_TRUE(files.folders.contains("/home/listener/Library/Preferences")) << "a missing folder is made";

    store(domains, other);
    EXPECT_EQ(domains.persistentDomainForName(name), other);
    EXPECT_EQ(storedOnDisk(), other);
    EXPECT_EQ(files.files.size(), 1) << "a file that could be read needs no copy";
}

TEST_F(PlistPreferenceDomainsTest, AnUnreadableFileIsNotStoredAndKeptBeforeTheFirstWriteOnly)
{
    for (const bool isAskedFirst : {true, false}) {
        for (const char* content : {"", "rubbish", "<plist><string>root</string></plist>", "bplist00"}) {
            files.files = {{path, content}};
            PlistPreferenceDomains domains(files);
            if (isAskedFirst) {
                EXPECT_EQ(domains.persistentDomainForName(name), std::nullopt) << content;
            }
            store(domains, some);
            store(domains, other);
            EXPECT_EQ(storedOnDisk(), other);
            EXPECT_EQ(files.files.size(), 2);
            EXPECT_EQ(files.files[copy], content);
        }
    }
}

TEST_F(PlistPreferenceDomainsTest, WhatCannotBeKeptIsNotReplaced)
{
    const std::map<std::string, std::string> before{{path, "rubbish"}, {copy, "older"}};
    files.files = before;
    files.failAll("list");
    PlistPreferenceDomains domains(files);
    store(domains, some);
    EXPECT_EQ(files.files, before);
    EXPECT_EQ(domains.persistentDomainForName(name), some);

    files.failAll("");
    domains.synchronize();
    EXPECT_EQ(storedOnDisk(), some);
    EXPECT_EQ(files.files[copy], "older");
    EXPECT_EQ(files.files[files.inPreferences("Mertzan-Software.Sonavel.damaged-2.plist")], "rubbish");
}

TEST_F(PlistPreferenceDomainsTest, AFolderInTheFilesPlaceDoesNotKeepThePreferencesFromBeingStored)
{
    files.folders = {path};
    PlistPreferenceDomains domains(files);
    store(domains, some);
    EXPECT_EQ(storedOnDisk(), some);
    EXPECT_TRUE(files.folders.contains(copy));
}

TEST_F(PlistPreferenceDomainsTest, AFailedWriteLeavesTheFormerDomainAndIsTriedAgain)
{
    PlistPreferenceDomains domains(files);
    store(domains, some);
    files.failAll("write");
    store(domains, other);
    EXPECT_EQ(storedOnDisk(), some);
    files.failAll("");
    domains.synchronize();
    EXPECT_EQ(storedOnDisk(), other);

    files.log.clear();
    domains.synchronize();
    EXPECT_TRUE(files.log.empty()) << "nothing was set, nothing is written";
}

} // namespace
} // namespace sonavel
