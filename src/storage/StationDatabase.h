// The encrypted file that stores the station list, and the plain file of earlier versions.
#pragma once

#include "base/NonCopyable.h"
#include "platform/Files.h"

namespace sonavel {

class StationList;

/// Reads and writes the station database "Library/Preferences/radiolist.rdb" under the home directory. The legacy plain
/// file "radiolist.csv" beside it is read once in its place and removed when the database holds its content.
///
/// How the list is loaded:
/// 1. With a legacy file (`fileRadioDBVerify(true)`), read it (`fileRadioDBreadCypted(false)`).
///    - Absent: `quarantineLegacyFile`, and go on as without one.
///    - Else, once the list is made of it and sorted: `removeLegacyFileAfterWrite`, then `fileRadioDBupdate`.
/// 2. Without one, read the database (`fileRadioDBreadCypted(true)`); absent means no stations.
///
/// No data of the user's is lost: the first write that would replace a database which this object has not read keeps
/// it as a backup, and fails when that fails. The backup is "radiolist.damaged.rdb" when the
/// database cannot be read, otherwise "radiolist.before-import.rdb".
///
/// Main thread. Borrows the files and the list.
class StationDatabase : private NonCopyable {
public:
    StationDatabase(Files& files, const StationList& list)
        : files_(files)
        , list_(list)
        , database_(UserFile::inPreferences(UserFile::Kind::StationList, files.homeDirectory(), stationDatabaseName))
        , legacyList_(UserFile::inPreferences(UserFile::Kind::StationList, files.homeDirectory(), legacyListName))
    {
    }

    /// Whether the legacy file, or else the database file, is there, readable or not.
    [[nodiscard]] bool fileRadioDBVerify(bool legacy) const;

    /// The list text from the database, decrypted, or else from the legacy file, without a byte order mark at its head.
    /// Absent when the file is missing, unreadable or not valid UTF-8, or cannot be decrypted. Before it reads the
    /// database it removes the temporary file of an interrupted write.
    [[nodiscard]] Text fileRadioDBreadCypted(bool crypted);

    /// Writes the list to the database. Does nothing while the list is absent. On failure the database keeps its
    /// content, and the next call tries again.
    void fileRadioDBupdate();

    /// Stores the list and keeps the database as the backup "radiolist.before-import.rdb". Returns the backup's
    /// path; absent on failure.
    [[nodiscard]] Text keepListBeforeImport();

    /// Renames the legacy file to the backup "radiolist.damaged.csv"; on failure it stays.
    void quarantineLegacyFile();

    /// From now on a successful write removes the legacy file; until one does, it stays.
    void removeLegacyFileAfterWrite() { legacyRemovalDue_ = true; }

private:
    [[nodiscard]] bool writeList();
    [[nodiscard]] bool keepUnreadDatabase();
    [[nodiscard]] FileResult<Text> keepBeforeImport();
    void removeLegacyFile();

    Files& files_;
    const StationList& list_;
    const UserFile database_;
    const UserFile legacyList_;
    bool databaseMayBeReplaced_ = false;
    bool legacyRemovalDue_ = false;
};

} // namespace sonavel
