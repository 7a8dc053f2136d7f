// The export of the station list to a file of the user's.
#pragma once

#include "base/NonCopyable.h"

namespace sonavel {

class FilePanels;
class Files;
class StationList;

class StationExport : private NonCopyable {
public:
    StationExport(const StationList& stationList, Files& files, FilePanels& filePanels)
        : stationList_(stationList)
        , files_(files)
        , filePanels_(filePanels)
    {
    }

    /// Lets the user choose a file and writes the list to it: a heading line and a line for each station, in the order
    /// of the list. On failure the file keeps its former content. Changes nothing else.
    void exportRadioListIntoFile();

private:
    const StationList& stationList_;
    Files& files_;
    FilePanels& filePanels_;
};

} // namespace sonavel
