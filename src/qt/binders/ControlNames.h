// The names of the controls, which are those of their widgets.
#pragma once

#include "platform/Interfaces.h"
#include "ui/Controls.h"

namespace sonavel {

// Each calls `visit` with every control of a window and its name.

template <class Visit> void forEachControl(MainControls& controls, Visit visit)
{
    visit(controls.winSonavel, "winSonavel");
    visit(controls.popupbuttonRadioList, "popupbuttonRadioList");
    visit(controls.buttonPlayPause, "buttonPlayPause");
    visit(controls.buttonStop, "buttonStop");
    visit(controls.buttonMute, "buttonMute");
    visit(controls.buttonEditRadioList, "buttonEditRadioList");
    visit(controls.imageVolume, "imageVolume");
    visit(controls.sliderVolume, "sliderVolume");
    visit(controls.labelVolume, "labelVolume");
}

template <class Visit> void forEachControl(StationListControls& controls, Visit visit)
{
    visit(controls.winWebRadioListEdit, "winWebRadioListEdit");
    visit(controls.toolBar, "toolBar");
    visit(controls.radioAdd, "radioAdd");
    visit(controls.radioEdit, "radioEdit");
    visit(controls.radioRemove, "radioRemove");
    visit(controls.radioImport, "radioImport");
    visit(controls.radioExport, "radioExport");
    visit(controls.tableViewListRadio, "tableViewListRadio");
    visit(controls.labelListStatus, "labelListStatus");
}

template <class Visit> void forEachControl(EditSheetControls& controls, Visit visit)
{
    visit(controls.winEditData, "winEditData");
    visit(controls.textFieldRadioName, "textFieldRadioName");
    visit(controls.textFieldRadioLink, "textFieldRadioLink");
    visit(controls.buttonAction, "buttonAction");
    visit(controls.buttonCancel, "buttonCancel");
}

template <class Visit> void forEachControl(PreferencesControls& controls, Visit visit)
{
    visit(controls.winPreferences, "winPreferences");
    visit(controls.checkBoxDefaultAutoPlayAtStartApp, "checkBoxDefaultAutoPlayAtStartApp");
    visit(controls.checkBoxDefaultAutoPlay, "checkBoxDefaultAutoPlay");
    visit(controls.labelSetDeaultRadio, "labelSetDeaultRadio");
    visit(controls.popupDefaultButtonListRadio, "popupDefaultButtonListRadio");
    visit(controls.labelSetDefaultVolume, "labelSetDefaultVolume");
    visit(controls.sliderDefaultVolume, "sliderDefaultVolume");
    visit(controls.buttonClosePreferences, "buttonClosePreferences");
}

template <class Visit> void forEachControl(AboutControls& controls, Visit visit)
{
    visit(controls.winAbout, "winAbout");
    visit(controls.imageAppIcon, "imageAppIcon");
    visit(controls.labelAppName, "labelAppName");
    visit(controls.labelAppVersion, "labelAppVersion");
    visit(controls.labelAppLicense, "labelAppLicense");
    visit(controls.labelAppCopytight, "labelAppCopytight");
    visit(controls.buttonCloseAbout, "buttonCloseAbout");
}

template <class Visit> void forEachControl(UpdateNoticeControls& controls, Visit visit)
{
    visit(controls.winUpdateNotification, "winUpdateNotification");
    visit(controls.labelUpdateNotification, "labelUpdateNotification");
    visit(controls.buttonCloseNotification, "buttonCloseNotification");
}

template <class Visit> void forEachControl(const UpdaterControls& controls, Visit visit)
{
    visit(controls.windowUpdater, "windowUpdater");
    visit(controls.textFieldLabelUpdateNameApp, "textFieldLabelUpdateNameApp");
    visit(controls.textFieldLabelUpdateVersionNote, "textFieldLabelUpdateVersionNote");
    visit(controls.textViewRelaseNote, "textViewRelaseNote");
    visit(controls.buttonUpdate, "buttonUpdate");
    visit(controls.buttonRemind, "buttonRemind");
}

} // namespace sonavel
