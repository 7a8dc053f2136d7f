#include "storage/StationDatabase.h"

#include "model/StationList.h"
#include "model/StationListText.h"
#include "storage/Backups.h"
#include "storage/StationListCodec.h"

namespace sonavel {

bool StationDatabase::fileRadioDBVerify(bool legacy) const
{
    return files_.fileExists(legacy ? legacyList_.path : database_.path);
}

Text StationDatabase::fileRadioDBreadCypted(bool crypted)
{
    if (!crypted)
        return files_.contentsOfFile(legacyList_.path).and_then(plainListText).value_or(Text());
    files_.removeUnfinishedWrite(database_.path);
    Text text = files_.contentsOfFile(database_.path).map(decodeStationList).value_or(Text());
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
    // On failure it stays, and nothing is lost.
    (void)quarantine(files_, legacyList_.path, damagedMark);
}

Text StationDatabase::keepListBeforeImport()
{
    return writeList() ? keepBeforeImport().value_or(Text()) : Text();
}

bool StationDatabase::writeList()
{
    if (list_.listRadio() == nullptr || !files_.makeFolderOf(database_) || !keepUnreadDatabase())
        return false;
    const Text content = encodeStationList(listTextFromRecords(*list_.listRadio(), Heading::None));
    if (content.isAbsent() || !files_.writeAtomically(database_, content.view()))
        return false;
    databaseMayBeReplaced_ = true;
    return true;
}

bool StationDatabase::keepUnreadDatabase()
{
    if (databaseMayBeReplaced_)
        return true;
    const auto content = files_.contentsOfFile(database_.path);
    if (!content && isAbsent(content.error()))
        return true;
    const bool isReadable = content && !decodeStationList(*content).isAbsent();
    const auto kept = isReadable ? keepBeforeImport() : keepDamaged(files_, database_.path);
    if (!kept)
        files_.reportUnsaved(database_, kept.error());
    databaseMayBeReplaced_ = kept.has_value();
    return databaseMayBeReplaced_;
}

FileResult<Text> StationDatabase::keepBeforeImport()
{
    return keepBackup(files_, database_.path, beforeImportMark);
}

void StationDatabase::removeLegacyFile()
{
    legacyRemovalDue_ = !files_.removeFile(legacyList_.path) && fileRadioDBVerify(true);
}

} // namespace sonavel
