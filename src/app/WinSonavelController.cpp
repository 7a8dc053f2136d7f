#include "app/WinSonavelController.h"

#include "online/Connectivity.h"
#include "platform/Alerts.h"
#include "platform/LocalizedStrings.h"
#include "platform/Process.h"
#include "platform/Questions.h"
#include "platform/RunLoop.h"
#include "prefs/PlaceholderKeys.h"
#include "ui/Outlets.h"

namespace sonavel {

WinSonavelController::WinSonavelController(const Ports& ports, const Configuration& configuration, Outlets& outlets)
    : alerts(ports.alerts)
    , stationDatabase(ports.files, stationList)
    , preferences(ports.preferenceDomains, ports.bundle, outlets.winWebRadioListEdit)
    , preferencesWindow(preferences, stationList, outlets)
    , player(ports.streamPlayers, ports.notificationCenter, outlets)
    , stationSelection(stationList, preferences, player, ports.localizedStrings, outlets)
    , stationRefresh(ports.httpClient, ports.clock, configuration.dataServer, serverDates, preferences, stationList,
          stationDatabase)
    , updateCheck({ports.httpClient, ports.localizedStrings, ports.interfaces, ports.webBrowser, ports.bundle,
                      configuration.dataServer},
          ports.clock, preferences, serverDates, stationRefresh, outlets)
    , stationLoading(stationList, stationDatabase, stationRefresh)
    , editorWindow(stationList, ports.localizedStrings, ports.runLoop, outlets)
    , editSheet(
          stationList, stationDatabase, stationSelection, editorWindow, preferences, ports.localizedStrings, outlets)
    , stationRemoval(
          stationList, stationDatabase, stationSelection, player, editorWindow, alerts, ports.localizedStrings, outlets)
    , stationImport(stationList, stationDatabase, stationSelection, preferences, ports.files, ports.filePanels, alerts,
          ports.localizedStrings, outlets)
    , stationExport(stationList, ports.files, ports.filePanels)
    , editorTable(stationList, stationDatabase, stationSelection, editSheet, outlets)
    , editorToolbar(editSheet, stationRemoval, stationImport, stationExport, outlets)
    , menus(*this, ports.localizedStrings, outlets)
    , ports_(ports)
    , configuration_(configuration)
    , outlets_(outlets)
{
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
    outlets_.buttonPlayPause.setImage("play.png"); // seen only by a window that is connected already
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
    ports_.runLoop.performOnNextTurn([this] { outlets_.winSonavel.makeKeyAndOrderFront(); });
}

void WinSonavelController::showPreferences()
{
    outlets_.winWebRadioListEdit.setIsVisible(preferences.PREF_WINEDIT_IS_VISIBLE);
    outlets_.checkBoxDefaultAutoPlayAtStartApp.setState(preferences.PREF_IS_AUTOPLAY_OPEN_APP);
    outlets_.checkBoxDefaultAutoPlay.setState(preferences.PREF_IS_AUTOPLAY);
    outlets_.sliderDefaultVolume.setMinValue(0.0);
    outlets_.sliderDefaultVolume.setMaxValue(1.0);
    outlets_.sliderDefaultVolume.setDoubleValue(preferences.PREF_DEFAULT_VOLUME);
    outlets_.sliderVolume.setDoubleValue(preferences.PREF_DEFAULT_VOLUME);
    outlets_.tableViewListRadio.setAllowsMultipleSelection(preferences.PREF_ENABLE_MULTIPLE_SELECTION);
    outlets_.tableViewListRadio.reloadData();
}

void WinSonavelController::prepareDefaultStation()
{
    if (preferences.PREF_DEFAULT_STATION == selectRadioNullKey)
        return;
    outlets_.popupDefaultButtonListRadio.setEnabled(preferencesWindow.setAutoEnablePopupDefaultButtonListRadio());
    stationSelection.selectDefaultStation();
}

void WinSonavelController::quitApp()
{
    const auto& strings = ports_.localizedStrings;
    preferences.updatePreference();
    if (isAnsweredYes(alerts, strings, strings.localizedStringForKey("ALLERT_TEXT_MESSAGE_QUIT")))
        ports_.process.exit(0);
    outlets_.winSonavel.setIsVisible(true);
}

void WinSonavelController::keepWhatIsOpen()
{
    outlets_.tableViewListRadio.endEditing();
    preferences.updatePreference();
}

void WinSonavelController::checkUpdateOnDemand()
{
    const unsigned changesBefore = stationRefresh.changes();
    updateCheck.checkUpdate();
    if (stationRefresh.changes() == changesBefore)
        return;
    stationSelection.updatePopupListRadioWithListStation();
    outlets_.tableViewListRadio.reloadData();
    editorWindow.updateTitleWebRadioListEdit();
}

void WinSonavelController::buttonClose()
{
    outlets_.winUpdateNotification.setIsVisible(false);
}

} // namespace sonavel
