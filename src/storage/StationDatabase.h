// The encrypted file in which the station list survives between runs, and the plain file that came before it.
#pragma once

#include "base/NonCopyable.h"
#include "platform/Files.h"

namespace sonavel {

class StationList;

/// Reads and writes the station database "Library/Preferences/radiolist.rdb" under the home directory. The legacy plain
/// file "radiolist.csv" beside it is read in its place once and goes when the database holds what it held.
///
/// How the list is loaded:
/// 1. With a legacy file (`fileRadioDBVerify(true)`), read it (`fileRadioDBreadCypted(false)`).
///    - Absent: `quarantineLegacyFile`, and go on as without one.
///    - Else, once the list is made of it and sorted: `removeLegacyFileAfterWrite`, then `fileRadioDBupdate`.
/// 2. Without one, read the database (`fileRadioDBreadCypted(true)`); absent means no stations.
///
/// Nothing of the user's is lost on the way: the first write that would replace a database which this object has not
/// read keeps it as a backup, and does not take place when it cannot. The copy is "radiolist.damaged.rdb" when the
/// database cannot be read, otherwise "radiolist.before-import.rdb".
///
/// Main thread. Borrows the files and the list.
class StationDatabase : private NonCopyable {
public:
    StationDatabase(Files& files, const StationList& list);

    /// Whether the legacy file, or else the database file, is there, readable or not.
    [[nodiscard]] bool fileRadioDBVerify(bool legacy) const;

    /// The list text from the database, decrypted, or else from the legacy file, without a byte order mark at its head.
    /// Absent when the file is missing, unreadable or not valid UTF-8, or cannot be decrypted. Before it reads the
    /// database it removes what a write that was killed left beside it.
    [[nodiscard]] Text fileRadioDBreadCypted(bool crypted);

    /// Writes the list to the database. Does nothing while the list is absent. When it fails the database keeps its
    /// former content; the next call tries again.
    void fileRadioDBupdate();

    /// Stores the list and keeps the database as the backup "radiolist.before-import.rdb". Answers the copy's
    /// path; absent when the list could not be kept.
    [[nodiscard]] Text keepListBeforeImport();

    /// Renames the legacy file to the backup "radiolist.damaged.csv"; where that fails it stays.
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
