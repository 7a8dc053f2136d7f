// The import of stations from a file of the user's.
#pragma once

#include "base/NonCopyable.h"
#include "platform/Files.h"

#include <string_view>

namespace sonavel {

class Alerts;
class FilePanels;
class ListWriter;
class LocalizedStrings;
class StationDatabase;
class StationList;
struct PreferenceFields;
struct StationListControls;

class StationImport : private NonCopyable {
public:
    StationImport(const StationList& stationList, ListWriter& listWriter, StationDatabase& stationDatabase,
        const PreferenceFields& preferences, Files& files, FilePanels& filePanels, Alerts& alerts,
        const LocalizedStrings& localizedStrings, StationListControls& controls)
        : stationList_(stationList)
        , listWriter_(listWriter)
        , stationDatabase_(stationDatabase)
        , preferences_(preferences)
        , files_(files)
        , filePanels_(filePanels)
        , alerts_(alerts)
        , localizedStrings_(localizedStrings)
        , controls_(controls)
    {
    }

    /// Lets the user choose a file and imports it.
    void importRadioListFromFile();

    /// Appends the stations of a plain list file, in the order of its lines, to the list, or replaces the list by them:
    /// the user is asked when there are stations. The list that is replaced is kept as a backup first; where that
    /// fails, nothing is imported. A name that the list holds gets a number behind it. A file that cannot be read has
    /// no stations. Stores the list; neither sorts it nor refreshes the title. Table and pop-ups show the list as it
    /// was before the last line.
    void importRadioListFromFileAtPath(const Text& path);

private:
    struct Outcome {
        std::size_t imported = 0;
        bool hasDuplicates = false;
    };

    [[nodiscard]] bool isToReplaceList() const;
    [[nodiscard]] Outcome appendStations(const Text& text);
    void notify(std::string_view message) const;
    [[nodiscard]] Text statusOf(const FileResult<Outcome>& outcome) const;
    void announce(const FileResult<Outcome>& outcome, const Text& backup);

    const StationList& stationList_;
    ListWriter& listWriter_;
    StationDatabase& stationDatabase_;
    const PreferenceFields& preferences_;
    Files& files_;
    FilePanels& filePanels_;
    Alerts& alerts_;
    const LocalizedStrings& localizedStrings_;
    StationListControls& controls_;
};

} // namespace sonavel
