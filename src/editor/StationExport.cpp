#include "editor/StationExport.h"

#include "model/StationList.h"
#include "model/StationListText.h"
#include "platform/FilePanels.h"
#include "platform/Files.h"

namespace sonavel {

void StationExport::exportRadioListIntoFile()
{
    const Text path = filePanels_.runModal(SavePanel{"Radio List.csv", files_.homeDirectory()});
    if (path.isAbsent())
        return;
    const std::string text = listTextFromRecords(*stationList_.listRadio(), Heading::FieldNames);
    files_.writeAtomically({UserFile::Kind::Other, path}, text, FileAccess::AsUsual);
}

} // namespace sonavel
