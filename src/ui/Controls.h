// Every control of the program by its outlet name, window by window.
#pragma once

#include "ui/Button.h"
#include "ui/ImageView.h"
#include "ui/MenuItem.h"
#include "ui/PopUpButton.h"
#include "ui/Slider.h"
#include "ui/TableView.h"
#include "ui/TextField.h"
#include "ui/Toolbar.h"
#include "ui/Window.h"

namespace sonavel {

struct MenuControls {
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
};

struct MainControls {
    Window winSonavel;
    PopUpButton popupbuttonRadioList;
    Button buttonPlayPause;
    Button buttonStop;
    Button buttonMute;
    Button buttonEditRadioList;
    ImageView imageVolume;
    Slider sliderVolume;
    TextField labelVolume;
};

struct StationListControls {
    Window winWebRadioListEdit;
    Toolbar toolBar;
    ToolbarItem radioAdd;
    ToolbarItem radioEdit;
    ToolbarItem radioRemove;
    ToolbarItem radioImport;
    ToolbarItem radioExport;
    TableView tableViewListRadio;
    /// One line on the result of an import, or on a list that could not be saved.
    TextField labelListStatus;
};

/// The sheet of the station list window.
struct EditSheetControls {
    Window winEditData;
    TextField textFieldRadioName;
    TextField textFieldRadioLink;
    Button buttonAction;
    Button buttonCancel;
};

struct PreferencesControls {
    Window winPreferences;
    Button checkBoxDefaultAutoPlayAtStartApp;
    Button checkBoxDefaultAutoPlay;
    TextField labelSetDeaultRadio;
    PopUpButton popupDefaultButtonListRadio;
    TextField labelSetDefaultVolume;
    Slider sliderDefaultVolume;
    Button buttonClosePreferences;
};

/// The notice of a check that found no newer version.
struct UpdateNoticeControls {
    Window winUpdateNotification;
    TextField labelUpdateNotification;
    Button buttonCloseNotification;
};

struct AboutControls {
    Window winAbout;
    Button buttonCloseAbout;
    ImageView imageAppIcon;
    TextField labelAppName;
    TextField labelAppVersion;
    TextField labelAppLicense;
    TextField labelAppCopytight;
};

/// The controls exist from the start; a toolkit connects those whose windows it has, between the two start-up phases.
/// Some are there for the windows' own use: the program neither reads nor sets them.
struct Controls {
    Window winSplashScreen;
    MenuControls menu;
    MainControls main;
    StationListControls stationList;
    EditSheetControls editSheet;
    PreferencesControls preferences;
    UpdateNoticeControls updateNotice;
    AboutControls about;
};

} // namespace sonavel
