#include "qt/binders/OutletConnector.h"

#include "app/Menus.h"
#include "platform/Interfaces.h"
#include "qt/binders/ButtonBinder.h"
#include "qt/binders/ImageBinder.h"
#include "qt/binders/LabelBinder.h"
#include "qt/binders/MenuItemBinder.h"
#include "qt/binders/PopUpBinder.h"
#include "qt/binders/SliderBinder.h"
#include "qt/binders/StatusLineBinder.h"
#include "qt/binders/TableBinder.h"
#include "qt/binders/TextFieldBinder.h"
#include "qt/binders/ToolbarItemBinder.h"
#include "qt/binders/WindowBinder.h"
#include "qt/kit/TextConversion.h"
#include "qt/windows/ProgramMenus.h"

#include <QToolBar>

namespace sonavel {

namespace {

/// The window itself or an object in it.
template <class Object> Object& objectNamed(QWidget& window, const char* name)
{
    const QString wanted = QString::fromLatin1(name);
    auto* object = dynamic_cast<Object*>(window.objectName() == wanted ? &window : window.findChild<QObject*>(wanted));
    if (object == nullptr)
        throw MissingOutlet(
            std::string("the window has no ") + Object::staticMetaObject.className() + " named " + name);
    return *object;
}

Text translated(const char* key)
{
    return toText(qtTrId(key));
}

// Qt owns the binders: each is a child of its widget.
void connect(Window& outlet, QWidget& window, const char* name)
{
    new WindowBinder(outlet, objectNamed<QWidget>(window, name));
}
void connect(Button& outlet, QWidget& window, const char* name)
{
    new ButtonBinder(outlet, objectNamed<QAbstractButton>(window, name));
}
void connect(PopUpButton& outlet, QWidget& window, const char* name)
{
    new PopUpBinder(outlet, objectNamed<StationComboBox>(window, name));
}
void connect(Slider& outlet, QWidget& window, const char* name)
{
    new SliderBinder(outlet, objectNamed<QSlider>(window, name));
}
void connect(TextField& outlet, QWidget& window, const char* name)
{
    auto& widget = objectNamed<QWidget>(window, name);
    if (auto* typed = dynamic_cast<QLineEdit*>(&widget))
        new TextFieldBinder(outlet, *typed);
    else if (auto* status = dynamic_cast<StatusLine*>(&widget))
        new StatusLineBinder(outlet, *status);
    else if (auto* notes = dynamic_cast<QPlainTextEdit*>(&widget))
        new LabelBinder(outlet, *notes);
    else
        new LabelBinder(outlet, objectNamed<QLabel>(window, name));
}
void connect(ImageView& outlet, QWidget& window, const char* name)
{
    new ImageBinder(outlet, objectNamed<QLabel>(window, name));
}
void connect(TableView& outlet, QWidget& window, const char* name)
{
    new TableBinder(outlet, objectNamed<StationTable>(window, name));
}
void connect(ToolbarItem& outlet, QWidget& window, const char* name)
{
    new ToolbarItemBinder(outlet, objectNamed<QAction>(window, name));
}
void connect(Toolbar& outlet, QWidget& window, const char* name)
{
    outlet.connect({objectNamed<QToolBar>(window, name).isVisibleTo(&window)});
}

void connectStationListWindowBeforehand(Outlets& outlets)
{
    outlets.winWebRadioListEdit.connect({translated("WIN_EDIT_RADIO_LIST")});
    outlets.toolBar.connect({true});
    int tag = 0;
    for (ToolbarItem* item :
        {&outlets.radioAdd, &outlets.radioEdit, &outlets.radioRemove, &outlets.radioImport, &outlets.radioExport})
        item->connect({tag++, false});
    outlets.tableViewListRadio.connect({});
    outlets.labelListStatus.connect({Text("")});

    outlets.winEditData.connect({translated("WIN_EDIT_DATA")});
    outlets.textFieldRadioName.connect({Text("")});
    outlets.textFieldRadioLink.connect({Text("")});
    outlets.buttonAction.connect({translated("BUTTON_ADD"), TitleColor::Black, {}, true});
    outlets.buttonCancel.connect({translated("BUTTON_CANCEL"), TitleColor::Black, {}, true});
}

void connectPreferencesBeforehand(Outlets& outlets)
{
    outlets.winPreferences.connect({translated("WIN_PREFERENCES")});
    outlets.checkBoxDefaultAutoPlayAtStartApp.connect({translated("CHECK_PLAY_AT_START"), TitleColor::Black, {}, true});
    outlets.checkBoxDefaultAutoPlay.connect({translated("CHECK_PLAY_WHEN_CHOSEN"), TitleColor::Black, {}, true});
    outlets.labelSetDeaultRadio.connect({translated("LABEL_DEFAULT_STATION")});
    outlets.popupDefaultButtonListRadio.connect({nullptr, -1, true});
    outlets.labelSetDefaultVolume.connect({translated("LABEL_DEFAULT_VOLUME")});
    outlets.sliderDefaultVolume.connect({0.0, 1.0, 0.0, true});
    outlets.buttonClosePreferences.connect({translated("BUTTON_CLOSE"), TitleColor::Black, {}, true});
}

} // namespace

void connectSplashScreen(Outlets& outlets, QWidget& window)
{
    connect(outlets.winSplashScreen, window, "winSplashScreen");
}

void connectMainWindow(Outlets& outlets, QWidget& window)
{
    connect(outlets.winSonavel, window, "winSonavel");
    connect(outlets.popupbuttonRadioList, window, "popupbuttonRadioList");
    connect(outlets.buttonPlayPause, window, "buttonPlayPause");
    connect(outlets.buttonStop, window, "buttonStop");
    connect(outlets.buttonMute, window, "buttonMute");
    connect(outlets.buttonEditRadioList, window, "buttonEditRadioList");
    connect(outlets.imageVolume, window, "imageVolume");
    connect(outlets.sliderVolume, window, "sliderVolume");
    connect(outlets.labelVolume, window, "labelVolume");
}

void connectStationListWindow(Outlets& outlets, QWidget& window)
{
    connect(outlets.winWebRadioListEdit, window, "winWebRadioListEdit");
    connect(outlets.toolBar, window, "toolBar");
    connect(outlets.radioAdd, window, "radioAdd");
    connect(outlets.radioEdit, window, "radioEdit");
    connect(outlets.radioRemove, window, "radioRemove");
    connect(outlets.radioImport, window, "radioImport");
    connect(outlets.radioExport, window, "radioExport");
    connect(outlets.tableViewListRadio, window, "tableViewListRadio");
    connect(outlets.labelListStatus, window, "labelListStatus");
}

void connectEditSheet(Outlets& outlets, QWidget& sheet)
{
    connect(outlets.winEditData, sheet, "winEditData");
    connect(outlets.textFieldRadioName, sheet, "textFieldRadioName");
    connect(outlets.textFieldRadioLink, sheet, "textFieldRadioLink");
    connect(outlets.buttonAction, sheet, "buttonAction");
    connect(outlets.buttonCancel, sheet, "buttonCancel");
}

void connectPreferences(Outlets& outlets, QWidget& sheet)
{
    connect(outlets.winPreferences, sheet, "winPreferences");
    connect(outlets.checkBoxDefaultAutoPlayAtStartApp, sheet, "checkBoxDefaultAutoPlayAtStartApp");
    connect(outlets.checkBoxDefaultAutoPlay, sheet, "checkBoxDefaultAutoPlay");
    connect(outlets.labelSetDeaultRadio, sheet, "labelSetDeaultRadio");
    connect(outlets.popupDefaultButtonListRadio, sheet, "popupDefaultButtonListRadio");
    connect(outlets.labelSetDefaultVolume, sheet, "labelSetDefaultVolume");
    connect(outlets.sliderDefaultVolume, sheet, "sliderDefaultVolume");
    connect(outlets.buttonClosePreferences, sheet, "buttonClosePreferences");
}

void connectAboutWindow(Outlets& outlets, QWidget& window)
{
    connect(outlets.winAbout, window, "winAbout");
    connect(outlets.imageAppIcon, window, "imageAppIcon");
    connect(outlets.labelAppName, window, "labelAppName");
    connect(outlets.labelAppVersion, window, "labelAppVersion");
    connect(outlets.labelAppLicense, window, "labelAppLicense");
    connect(outlets.labelAppCopytight, window, "labelAppCopytight");
    connect(outlets.buttonCloseAbout, window, "buttonCloseAbout");
}

void connectUpdateNotice(Outlets& outlets, QWidget& window)
{
    connect(outlets.winUpdateNotification, window, "winUpdateNotification");
    connect(outlets.labelUpdateNotification, window, "labelUpdateNotification");
    connect(outlets.buttonCloseNotification, window, "buttonCloseNotification");
}

void connectUpdateWindow(const UpdaterControls& controls, QWidget& window)
{
    connect(controls.windowUpdater, window, "windowUpdater");
    connect(controls.textFieldLabelUpdateNameApp, window, "textFieldLabelUpdateNameApp");
    connect(controls.textFieldLabelUpdateVersionNote, window, "textFieldLabelUpdateVersionNote");
    connect(controls.textViewRelaseNote, window, "textViewRelaseNote");
    connect(controls.buttonUpdate, window, "buttonUpdate");
    connect(controls.buttonRemind, window, "buttonRemind");
}

void connectBeforehand(Outlets& outlets)
{
    connectStationListWindowBeforehand(outlets);
    connectPreferencesBeforehand(outlets);
    outlets.winAbout.connect({translated("WIN_ABOUT")});
    outlets.winUpdateNotification.connect({translated("WIN_UPDATE")});
    outlets.labelUpdateNotification.connect({Text("")});
}

void connectMenus(Outlets& outlets, const ProgramMenus& menus)
{
    for (const auto& [item, action] : menus.items())
        new MenuItemBinder(outlets.*item, tagOf(item), *action);
}

} // namespace sonavel
