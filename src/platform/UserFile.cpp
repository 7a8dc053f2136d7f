#include "platform/UserFile.h"

namespace sonavel {

namespace {

Text inPreferences(const Text& homeDirectory, std::string_view name)
{
    return homeDirectory.string().append("/Library/Preferences/").append(name);
}

} // namespace

UserFile stationDatabaseFile(const Text& homeDirectory)
{
    return {UserFile::Kind::StationList, inPreferences(homeDirectory, "radiolist.rdb")};
}

UserFile legacyListFile(const Text& homeDirectory)
{
    return {UserFile::Kind::StationList, inPreferences(homeDirectory, "radiolist.csv")};
}

UserFile preferencesFile(const Text& homeDirectory, std::string_view domain)
{
    return {UserFile::Kind::Preferences, inPreferences(homeDirectory, domain)};
}

} // namespace sonavel
