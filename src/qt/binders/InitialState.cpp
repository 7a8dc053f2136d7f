#include "qt/binders/OutletConnector.h"
#include "qt/kit/TextConversion.h"

namespace sonavel {

namespace {

Text translated(const char* key)
{
    return toText(qtTrId(key));
}

void connectTitled(Window& window, const char* key)
{
    window.connect({.title = translated(key)});
}

void connectTitled(Button& button, const char* key)
{
    button.connect({.title = translated(key), .image = {}, .isEnabled = true});
}

void connectText(TextField& field, const char* key)
{
    field.connect({.stringValue = translated(key)});
}

void connectStationList(StationListControls& controls)
{
    connectTitled(controls.winWebRadioListEdit, "WIN_EDIT_RADIO_LIST");
    controls.toolBar.connect({.isVisible = true});
    int tag = 0;
    for (ToolbarItem* item :
        {&controls.radioAdd, &controls.radioEdit, &controls.radioRemove, &controls.radioImport, &controls.radioExport})
        item->connect({.tag = tag++});
    controls.tableViewListRadio.connect({});
    controls.labelListStatus.connect({.stringValue = ""});
}

void connectEditSheet(EditSheetControls& controls)
{
    connectTitled(controls.winEditData, "WIN_EDIT_DATA");
    controls.textFieldRadioName.connect({.stringValue = ""});
    controls.textFieldRadioLink.connect({.stringValue = ""});
    connectTitled(controls.buttonAction, "BUTTON_ADD");
    connectTitled(controls.buttonCancel, "BUTTON_CANCEL");
}

void connectPreferences(PreferencesControls& controls)
{
    connectTitled(controls.winPreferences, "WIN_PREFERENCES");
    connectTitled(controls.checkBoxDefaultAutoPlayAtStartApp, "CHECK_PLAY_AT_START");
    connectTitled(controls.checkBoxDefaultAutoPlay, "CHECK_PLAY_WHEN_CHOSEN");
    connectText(controls.labelSetDeaultRadio, "LABEL_DEFAULT_STATION");
    controls.popupDefaultButtonListRadio.connect({.titles = {}, .selectedIndex = -1, .isEnabled = true});
    connectText(controls.labelSetDefaultVolume, "LABEL_DEFAULT_VOLUME");
    controls.sliderDefaultVolume.connect({.maxValue = 1.0, .isEnabled = true});
    connectTitled(controls.buttonClosePreferences, "BUTTON_CLOSE");
}

} // namespace

void connectInitialState(Controls& controls)
{
    connectStationList(controls.stationList);
    connectEditSheet(controls.editSheet);
    connectPreferences(controls.preferences);
    connectTitled(controls.about.winAbout, "WIN_ABOUT");
    connectTitled(controls.updateNotice.winUpdateNotification, "WIN_UPDATE");
    controls.updateNotice.labelUpdateNotification.connect({.stringValue = ""});
    connectTitled(controls.updateNotice.buttonCloseNotification, "BUTTON_CLOSE");
}

} // namespace sonavel
