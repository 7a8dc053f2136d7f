// Every control of the program, by its outlet name.
#pragma once

#include "ui/Button.h"
#include "ui/ImageView.h"
#include "ui/MenuItem.h"
#include "ui/PopUpButton.h"
#include "ui/Slider.h"
#include "ui/TableView.h"
#include "ui/TextField.h"
#include "ui/Toolbar.h"
#include "ui/ToolbarItem.h"
#include "ui/Window.h"

namespace sonavel {

/// The controls exist from the start; a toolkit connects those whose windows it has, between the two start-up phases.
/// Some are there for the windows' own use: the program neither reads nor sets them.
struct Outlets {
    MenuItem menuRadioAdd;
    MenuItem menuRadioEdit;
    MenuItem menuRadioRemove;
    MenuItem menuRadioImport;
    MenuItem menuRadioExport;
    MenuItem menuRadioShowEditRadio;
    MenuItem menuPlayPause;
    MenuItem menuStop;
    MenuItem menuMute;
    MenuItem menuPreviousStation;
    MenuItem menuNextStation;
    MenuItem menuCheckUpdates;
    MenuItem menuQuit;
    MenuItem menuPreferences;
    MenuItem menuAbout;

    Window winSplashScreen;

    Window winSonavel;
    PopUpButton popupbuttonRadioList;
    Button buttonPlayPause;
    Button buttonStop;
    Button buttonMute;
    Button buttonEditRadioList;
    ImageView imageVolume;
    Slider sliderVolume;
    TextField labelVolume;

    Window winWebRadioListEdit;
    Toolbar toolBar;
    ToolbarItem radioAdd;
    ToolbarItem radioEdit;
    ToolbarItem radioRemove;
    ToolbarItem radioImport;
    ToolbarItem radioExport;
    TableView tableViewListRadio;
    /// One line on what came of an import, or of a list that could not be saved.
    TextField labelListStatus;

    /// The sheet of the station list window.
    Window winEditData;
    TextField textFieldRadioName;
    TextField textFieldRadioLink;
    Button buttonAction;
    Button buttonCancel;

    Window winPreferences;
    Button checkBoxDefaultAutoPlayAtStartApp;
    Button checkBoxDefaultAutoPlay;
    TextField labelSetDeaultRadio;
    PopUpButton popupDefaultButtonListRadio;
    TextField labelSetDefaultVolume;
    Slider sliderDefaultVolume;
    Button buttonClosePreferences;

    /// The notice of a check that found no newer version.
    Window winUpdateNotification;
    TextField labelUpdateNotification;
    Button buttonCloseNotification;

    // What the program tells of itself.
    Window winAbout;
    Button buttonCloseAbout;
    ImageView imageAppIcon;
    TextField labelAppName;
    TextField labelAppVersion;
    TextField labelAppLicense;
    TextField labelAppCopytight;
};

} // namespace sonavel
