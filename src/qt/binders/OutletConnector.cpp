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

} // namespace

void connectSplashScreen(Window& winSplashScreen, QWidget& window)
{
    connect(winSplashScreen, window, "winSplashScreen");
}

void connectMainWindow(MainControls& controls, QWidget& window)
{
    connect(controls.winSonavel, window, "winSonavel");
    connect(controls.popupbuttonRadioList, window, "popupbuttonRadioList");
    connect(controls.buttonPlayPause, window, "buttonPlayPause");
    connect(controls.buttonStop, window, "buttonStop");
    connect(controls.buttonMute, window, "buttonMute");
    connect(controls.buttonEditRadioList, window, "buttonEditRadioList");
    connect(controls.imageVolume, window, "imageVolume");
    connect(controls.sliderVolume, window, "sliderVolume");
    connect(controls.labelVolume, window, "labelVolume");
}

void connectStationListWindow(StationListControls& controls, QWidget& window)
{
    connect(controls.winWebRadioListEdit, window, "winWebRadioListEdit");
    connect(controls.toolBar, window, "toolBar");
    connect(controls.radioAdd, window, "radioAdd");
    connect(controls.radioEdit, window, "radioEdit");
    connect(controls.radioRemove, window, "radioRemove");
    connect(controls.radioImport, window, "radioImport");
    connect(controls.radioExport, window, "radioExport");
    connect(controls.tableViewListRadio, window, "tableViewListRadio");
    connect(controls.labelListStatus, window, "labelListStatus");
}

void connectEditSheet(EditSheetControls& controls, QWidget& sheet)
{
    connect(controls.winEditData, sheet, "winEditData");
    connect(controls.textFieldRadioName, sheet, "textFieldRadioName");
    connect(controls.textFieldRadioLink, sheet, "textFieldRadioLink");
    connect(controls.buttonAction, sheet, "buttonAction");
    connect(controls.buttonCancel, sheet, "buttonCancel");
}

void connectPreferences(PreferencesControls& controls, QWidget& sheet)
{
    connect(controls.winPreferences, sheet, "winPreferences");
    connect(controls.checkBoxDefaultAutoPlayAtStartApp, sheet, "checkBoxDefaultAutoPlayAtStartApp");
    connect(controls.checkBoxDefaultAutoPlay, sheet, "checkBoxDefaultAutoPlay");
    connect(controls.labelSetDeaultRadio, sheet, "labelSetDeaultRadio");
    connect(controls.popupDefaultButtonListRadio, sheet, "popupDefaultButtonListRadio");
    connect(controls.labelSetDefaultVolume, sheet, "labelSetDefaultVolume");
    connect(controls.sliderDefaultVolume, sheet, "sliderDefaultVolume");
    connect(controls.buttonClosePreferences, sheet, "buttonClosePreferences");
}

void connectAboutWindow(AboutControls& controls, QWidget& window)
{
    connect(controls.winAbout, window, "winAbout");
    connect(controls.imageAppIcon, window, "imageAppIcon");
    connect(controls.labelAppName, window, "labelAppName");
    connect(controls.labelAppVersion, window, "labelAppVersion");
    connect(controls.labelAppLicense, window, "labelAppLicense");
    connect(controls.labelAppCopytight, window, "labelAppCopytight");
    connect(controls.buttonCloseAbout, window, "buttonCloseAbout");
}

void connectUpdateNotice(UpdateNoticeControls& controls, QWidget& window)
{
    connect(controls.winUpdateNotification, window, "winUpdateNotification");
    connect(controls.labelUpdateNotification, window, "labelUpdateNotification");
    connect(controls.buttonCloseNotification, window, "buttonCloseNotification");
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

void connectMenus(MenuControls& controls, const ProgramMenus& menus)
{
    for (const auto& [item, action] : menus.items())
        new MenuItemBinder(controls.*item, tagOf(item), *action);
}

} // namespace sonavel
