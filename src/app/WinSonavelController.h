// The controller: everything that the program is made of, its start and its end.
#pragma once

#include "app/ActionQueue.h"
#include "app/Actions.h"
#include "app/CountedAlerts.h"
#include "app/MediaControls.h"
#include "app/Menus.h"
#include "app/Ports.h"
#include "app/StationLoading.h"
#include "base/NonCopyable.h"
#include "editor/EditSheet.h"
#include "editor/EditorTable.h"
#include "editor/EditorToolbar.h"
#include "editor/EditorWindow.h"
#include "editor/StationExport.h"
#include "editor/StationImport.h"
#include "editor/StationRemoval.h"
#include "model/StationList.h"
#include "online/ServerDates.h"
#include "online/StationRefresh.h"
#include "online/UpdateCheck.h"
#include "playback/Player.h"
#include "playback/StationSelection.h"
#include "playback/StreamStatus.h"
#include "prefs/Preferences.h"
#include "prefs/PreferencesWindow.h"
#include "storage/ListWriter.h"
#include "storage/StationDatabase.h"

namespace sonavel {

struct Controls;

/// How it is started: make it, `init`, connect the outlets, `awakeFromNib`. All of it on the main thread.
class WinSonavelController : private NonCopyable {
public:
    WinSonavelController(const Ports& ports, const Configuration& configuration, Controls& controls);

    /// The first phase, before any outlet is connected: looks for a network, loads the preferences, checks for a newer
    /// version when that is due, and loads the station list. Blocks while it asks servers. Without a network it says so
    /// and ends the process with status 0, with nothing stored.
    void init();

    /// The second phase, once every outlet is connected: shows what was loaded, selects the default station, and brings
    /// the main window to the front on the loop's next turn.
    void awakeFromNib();

    /// Stores the preferences, then asks whether to quit: ends the process with status 0, or shows the main window.
    void quitApp();

    /// For a session that ends: stores what is typed in an open cell, and the preferences.
    void keepWhatIsOpen();

    /// The check on demand. When it changed the list, what shows the list is brought up to date.
    void checkUpdateOnDemand();

    /// Closes the notice of the update check.
    void buttonClose();

    CountedAlerts& alerts;
    StationList stationList;
    StationDatabase stationDatabase;
    ListWriter listWriter;
    Preferences preferences;
    PreferencesWindow preferencesWindow;
    StreamStatus streamStatus;
    Player player;
    StationSelection stationSelection;
    ServerDates serverDates;
    StationRefresh stationRefresh;
    UpdateCheck updateCheck;
    StationLoading stationLoading;
    EditorWindow editorWindow;
    EditSheet editSheet;
    StationRemoval stationRemoval;
    StationImport stationImport;
    StationExport stationExport;
    EditorTable editorTable;
    EditorToolbar editorToolbar;
    Menus menus;
    ActionQueue queue;
    Actions actions;
    MediaControls mediaControls;

private:
    void endWithoutInternet();
    void validateItems();
    void show(ListStep step);
    void showPreferences();
    void prepareDefaultStation();

    const Ports ports_;
    const Configuration configuration_;
    Controls& controls_;
};

} // namespace sonavel
