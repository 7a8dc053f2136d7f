#include "storage/StationDatabase.h"

#include "model/StationList.h"
#include "model/StationListText.h"
#include "storage/Backups.h"
#include "storage/PlainListFile.h"
#include "storage/StationListCodec.h"

namespace sonavel {

StationDatabase::StationDatabase(Files& files, const StationList& list)
    : files_(files)
    , list_(list)
    , folder_(files.homeDirectory().string() + "/Library/Preferences")
    , databasePath_(folder_.string() + "/radiolist.rdb")
    , legacyPath_(folder_.string() + "/radiolist.csv")
{
}

bool StationDatabase::fileRadioDBVerify(bool legacy) const
{
    return files_.fileExists(legacy ? legacyPath_ : databasePath_);
}

Text StationDatabase::fileRadioDBreadCypted(bool crypted)
{
    if (!crypted)
        return listTextOfPlainFile(files_, legacyPath_);
    files_.removeUnfinishedWrite(databasePath_);
    Text text = decodeStationList(files_.contentsOfFile(databasePath_));
    databaseMayBeReplaced_ = !text.isAbsent();
    return text;
}

void StationDatabase::fileRadioDBupdate()
{
    if (writeList() && legacyRemovalDue_)
        removeLegacyFile();
}

void StationDatabase::quarantineLegacyFile()
{
    // Where it cannot be renamed it stays as it is, which loses nothing.
    (void)quarantine(files_, legacyPath_, "damaged");
}

Text StationDatabase::keepListBeforeImport()
{
    return writeList() ? keepBeforeImport() : Text();
}

bool StationDatabase::writeList()
{
    if (list_.listRadio() == nullptr || !files_.makeFolder(folder_) || !keepUnreadDatabase())
        return false;
    const Text content = encodeStationList(listTextFromRecords(*list_.listRadio(), Heading::None));
    if (content.isAbsent() || !files_.writeAtomically(databasePath_, content.view()))
        return false;
    databaseMayBeReplaced_ = true;
    return true;
}

bool StationDatabase::keepUnreadDatabase()
{
    if (databaseMayBeReplaced_ || !fileRadioDBVerify(false))
        return true;
    const bool isReadable = !decodeStationList(files_.contentsOfFile(databasePath_)).isAbsent();
    databaseMayBeReplaced_ = isReadable ? !keepBeforeImport().isAbsent() : keepDamaged(files_, databasePath_);
    return databaseMayBeReplaced_;
}

Text StationDatabase::keepBeforeImport()
{
    return keepBackup(files_, databasePath_, "before-import");
}

void StationDatabase::removeLegacyFile()
{
    legacyRemovalDue_ = !files_.removeFile(legacyPath_) && fileRadioDBVerify(true);
}

} // namespace sonavel
