#include "app/WinSonavelController.h"

#include "app/Wiring.h"
#include "online/WebRequests.h"
#include "platform/Alerts.h"
#include "platform/LocalizedStrings.h"
#include "platform/Process.h"
#include "platform/RunLoop.h"
#include "prefs/PreferenceFields.h"
#include "ui/Controls.h"

namespace sonavel {

WinSonavelController::WinSonavelController(const Ports& ports, const Configuration& configuration, Controls& controls)
    : alerts(ports.alerts)
    , stationDatabase(ports.files, stationList)
    , listWriter(stationList, stationDatabase)
    , preferences(ports.preferenceDomains, ports.bundle, controls.stationList.winWebRadioListEdit)
    , preferencesWindow(preferences, stationList, controls.preferences)
    , streamStatus(ports.streamPlayers)
    , player(ports.streamPlayers, ports.notificationCenter, controls.main, controls.menu.menuMute)
    , stationSelection(stationList, preferences, player, ports.localizedStrings, controls.main,
          controls.preferences.popupDefaultButtonListRadio)
    , stationRefresh(
          ports.httpClient, ports.clock, configuration.dataServer, serverDates, preferences, stationList, listWriter)
    , updateCheck({ports.httpClient, ports.localizedStrings, ports.interfaces, ports.webBrowser, ports.bundle,
                      configuration.dataServer},
          ports.clock, preferences, serverDates, stationRefresh, controls.updateNotice)
    , stationLoading(stationList, listWriter, stationDatabase, stationRefresh)
    , editorWindow(stationList, ports.localizedStrings, ports.runLoop, controls.stationList.winWebRadioListEdit)
    , editSheet(stationList, listWriter, preferences, ports.localizedStrings, controls.editSheet,
          controls.stationList.tableViewListRadio)
    , stationRemoval(stationList, listWriter, player, alerts, ports.localizedStrings,
          controls.stationList.tableViewListRadio, controls.main.popupbuttonRadioList)
    , stationImport(stationList, listWriter, stationDatabase, preferences, ports.files, ports.filePanels, alerts,
          ports.localizedStrings, controls.stationList)
    , stationExport(stationList, ports.files, ports.filePanels)
    , editorTable(stationList, listWriter, editSheet, controls.stationList.tableViewListRadio)
    , editorToolbar(editSheet, stationRemoval, stationImport, stationExport, controls.stationList)
    , menus(controls.menu,
          {player, stationSelection, editorWindow, editSheet, stationRemoval, stationImport, stationExport,
              [this] { quitApp(); }, [this] { checkUpdateOnDemand(); }, stationList, controls.stationList,
              controls.main.popupbuttonRadioList, controls.preferences.winPreferences},
          ports.localizedStrings)
    , actions(queue, controls.stationList.tableViewListRadio, [this] { validateItems(); })
    , mediaControls(controls.main, player, streamStatus, stationSelection, stationList, actions, alerts, ports.clock,
          [this] { quitApp(); })
    , ports_(ports)
    , configuration_(configuration)
    , controls_(controls)
{
    listWriter.setObserver([this](ListStep step) { show(step); });
    wireMainWindow(actions, controls.main, player, stationSelection, editorWindow, [this] { quitApp(); });
    wireStationList(actions, controls.stationList, editorWindow, editorTable, editorToolbar);
    wireEditSheet(actions, controls.editSheet, editSheet);
    wirePreferences(actions, controls.preferences, preferencesWindow);
    wireUpdateCheck(actions, controls.updateNotice, updateCheck, [this] { buttonClose(); });
    wireAbout(actions, controls.about);
    wireMenus(actions, controls.menu, menus, preferencesWindow, controls.about);
}

void WinSonavelController::init()
{
    if (!hasInternetWithSite(ports_.httpClient, configuration_.probe))
        endWithoutInternet();
    preferences.setStartValues();
    preferences.loadingPreference();
    if (updateCheck.isDueAtStart())
        updateCheck.checkUpdate();
    stationLoading.initRadioList();
    preferences.loadingPreference();
    controls_.main.buttonPlayPause.setImage("play.png"); // seen only by a window that is connected already
    player.isPlay = false;
    player.isStop = true;
    player.isMute = false;
}

void WinSonavelController::endWithoutInternet()
{
    alerts.runModal({ports_.localizedStrings.localizedStringForKey("INTERNET_ERROR"), {}});
    ports_.process.exit(0);
}

void WinSonavelController::awakeFromNib()
{
    player.registerForNotifications();
    stationSelection.updatePopupListRadioWithListStation();
    editorWindow.updateTitleWebRadioListEdit();
    showPreferences();
    player.applyVolume();
    prepareDefaultStation();
    ports_.runLoop.performOnNextTurn([this] { controls_.main.winSonavel.makeKeyAndOrderFront(); });
}

void WinSonavelController::showPreferences()
{
    controls_.stationList.winWebRadioListEdit.setIsVisible(preferences.PREF_WINEDIT_IS_VISIBLE);
    controls_.preferences.checkBoxDefaultAutoPlayAtStartApp.setState(preferences.PREF_IS_AUTOPLAY_OPEN_APP);
    controls_.preferences.checkBoxDefaultAutoPlay.setState(preferences.PREF_IS_AUTOPLAY);
    controls_.preferences.sliderDefaultVolume.setMinValue(0.0);
    controls_.preferences.sliderDefaultVolume.setMaxValue(1.0);
    controls_.preferences.sliderDefaultVolume.setDoubleValue(preferences.PREF_DEFAULT_VOLUME);
    controls_.main.sliderVolume.setDoubleValue(preferences.PREF_DEFAULT_VOLUME);
    controls_.stationList.tableViewListRadio.setAllowsMultipleSelection(preferences.PREF_ENABLE_MULTIPLE_SELECTION);
    controls_.stationList.tableViewListRadio.reloadData();
}

void WinSonavelController::prepareDefaultStation()
{
    if (preferences.PREF_DEFAULT_STATION == selectRadioNullKey)
        return;
    controls_.preferences.popupDefaultButtonListRadio.setEnabled(
        preferencesWindow.setAutoEnablePopupDefaultButtonListRadio());
    stationSelection.selectDefaultStation();
}

void WinSonavelController::validateItems()
{
    stationSelection.validateControls();
    editorToolbar.validateVisibleItems();
    menus.validateItems();
}

void WinSonavelController::quitApp()
{
    const auto& strings = ports_.localizedStrings;
    preferences.updatePreference();
    if (isAnsweredYes(alerts, strings, strings.localizedStringForKey("ALLERT_TEXT_MESSAGE_QUIT")))
        ports_.process.exit(0);
    controls_.main.winSonavel.setIsVisible(true);
}

void WinSonavelController::keepWhatIsOpen()
{
    controls_.stationList.tableViewListRadio.endEditing();
    preferences.updatePreference();
}

void WinSonavelController::checkUpdateOnDemand()
{
    const unsigned changesBefore = listWriter.changes();
    updateCheck.checkUpdate();
    if (listWriter.changes() != changesBefore)
        listWriter.follow(ListOperation::RefreshShown);
}

void WinSonavelController::show(ListStep step)
{
    switch (step) {
    case ListStep::Save:
        return;
    case ListStep::RefillPopUps:
        return stationSelection.updatePopupListRadioWithListStation();
    case ListStep::ReloadTable:
        return controls_.stationList.tableViewListRadio.reloadData();
    case ListStep::SelectLastRow:
        return editSheet.selectLastRow();
    case ListStep::CloseSheet:
        return editSheet.winEditDataCloseAndResetField();
    case ListStep::UpdateTitle:
        return editorWindow.updateTitleWebRadioListEdit();
    }
}

void WinSonavelController::buttonClose()
{
    controls_.updateNotice.winUpdateNotification.setIsVisible(false);
}

} // namespace sonavel
