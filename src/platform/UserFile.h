// The program's own files: their names, their places, and what they are to the user.
#pragma once

#include "base/Text.h"

#include <cstdint>
#include <string_view>

namespace sonavel {

/// A file that the program writes.
struct UserFile {
    enum class Kind : std::uint8_t {
        StationList,
        Preferences,
        Other, ///< where the user wants it
    };

    Kind kind = Kind::Other;
    Text path;

    /// A file in the user's folder for preferences.
    [[nodiscard]] static UserFile inPreferences(Kind kind, const Text& homeDirectory, std::string_view name)
    {
        return {kind, homeDirectory.string().append("/Library/Preferences/").append(name)};
    }
};

/// In the folder for preferences.
constexpr std::string_view stationDatabaseName = "radiolist.rdb";
/// The plain file that came before the database.
constexpr std::string_view legacyListName = "radiolist.csv";
/// The property list of the preferences.
constexpr std::string_view preferenceDomainName = "Mertzan-Software.Sonavel.plist";

/// Why there is a backup, as its name says: "radiolist.damaged.rdb" is one of "radiolist.rdb".
constexpr std::string_view damagedMark = "damaged";
constexpr std::string_view beforeImportMark = "before-import";

/// In the user's folder for the state of programs.
constexpr std::string_view windowStateName = "sonavel/windows.ini";
/// In the user's and the system's folders for configuration.
constexpr std::string_view configurationName = "sonavel/sonavel.conf";

} // namespace sonavel
