#include "editor/StationExport.h"

#include "model/StationList.h"
#include "model/StationListText.h"
#include "platform/FilePanels.h"
#include "platform/Files.h"

namespace sonavel {

StationExport::StationExport(const StationList& stationList, Files& files, FilePanels& filePanels)
    : stationList_(stationList)
    , files_(files)
    , filePanels_(filePanels)
{
}

void StationExport::exportRadioListIntoFile()
{
    const Text path = filePanels_.runModal(SavePanel{"Radio List.csv", files_.homeDirectory()});
    if (path.isAbsent())
        return;
    const std::string text = listTextFromRecords(*stationList_.listRadio(), Heading::FieldNames);
    files_.writeAtomically({UserFile::Kind::Other, path}, text, FileAccess::AsUsual);
}

} // namespace sonavel
