#include "qt/binders/OutletConnector.h"

#include "app/Menus.h"
#include "platform/Interfaces.h"
#include "qt/binders/Binders.h"
#include "qt/kit/StationComboBox.h"
#include "qt/kit/StatusLine.h"
#include "qt/windows/ProgramMenus.h"
#include "qt/windows/stationlist/StationTable.h"

#include <QAbstractButton>
#include <QAction>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>
#include <QToolBar>

namespace sonavel {

namespace {

/// The widgets of a window by their names. Qt owns what binds them.
class Outlets {
public:
    explicit Outlets(QWidget& window)
        : window_(window)
    {
    }

    void connect(Window& outlet, const char* name) const { bind(outlet, named<QWidget>(name)); }
    void connect(Button& outlet, const char* name) const { bind(outlet, named<QAbstractButton>(name)); }
    void connect(PopUpButton& outlet, const char* name) const { bind(outlet, named<StationComboBox>(name)); }
    void connect(Slider& outlet, const char* name) const { bind(outlet, named<QSlider>(name)); }
    void connect(ImageView& outlet, const char* name) const { bind(outlet, named<QLabel>(name)); }
    void connect(TableView& outlet, const char* name) const { bind(outlet, named<StationTable>(name)); }
    void connect(ToolbarItem& outlet, const char* name) const { bind(outlet, named<QAction>(name)); }
    void connect(Toolbar& outlet, const char* name) const
    {
        outlet.connect({named<QToolBar>(name).isVisibleTo(&window_)});
    }
    void connect(TextField& outlet, const char* name) const
    {
        auto& widget = named<QWidget>(name);
        if (auto* typed = dynamic_cast<QLineEdit*>(&widget))
            bind(outlet, *typed);
        else if (auto* status = dynamic_cast<StatusLine*>(&widget))
            bind(outlet, *status);
        else if (auto* notes = dynamic_cast<QPlainTextEdit*>(&widget))
            bind(outlet, *notes);
        else
            bind(outlet, named<QLabel>(name));
    }

private:
    /// The window itself or an object in it.
    template <class Object> [[nodiscard]] Object& named(const char* name) const
    {
        const QString wanted = QString::fromLatin1(name);
        QObject* found = window_.objectName() == wanted ? &window_ : window_.findChild<QObject*>(wanted);
        auto* object = dynamic_cast<Object*>(found);
        if (object == nullptr)
            throw MissingOutlet(
                std::string("the window has no ") + Object::staticMetaObject.className() + " named " + name);
        return *object;
    }

    QWidget& window_;
};

} // namespace

void connectMainWindow(MainControls& controls, QWidget& window)
{
    const Outlets outlets(window);
    outlets.connect(controls.winSonavel, "winSonavel");
    outlets.connect(controls.popupbuttonRadioList, "popupbuttonRadioList");
    outlets.connect(controls.buttonPlayPause, "buttonPlayPause");
    outlets.connect(controls.buttonStop, "buttonStop");
    outlets.connect(controls.buttonMute, "buttonMute");
    outlets.connect(controls.buttonEditRadioList, "buttonEditRadioList");
    outlets.connect(controls.imageVolume, "imageVolume");
    outlets.connect(controls.sliderVolume, "sliderVolume");
    outlets.connect(controls.labelVolume, "labelVolume");
}

void connectStationListWindow(StationListControls& controls, QWidget& window)
{
    const Outlets outlets(window);
    outlets.connect(controls.winWebRadioListEdit, "winWebRadioListEdit");
    outlets.connect(controls.toolBar, "toolBar");
    outlets.connect(controls.radioAdd, "radioAdd");
    outlets.connect(controls.radioEdit, "radioEdit");
    outlets.connect(controls.radioRemove, "radioRemove");
    outlets.connect(controls.radioImport, "radioImport");
    outlets.connect(controls.radioExport, "radioExport");
    outlets.connect(controls.tableViewListRadio, "tableViewListRadio");
    outlets.connect(controls.labelListStatus, "labelListStatus");
}

void connectEditSheet(EditSheetControls& controls, QWidget& sheet)
{
    const Outlets outlets(sheet);
    outlets.connect(controls.winEditData, "winEditData");
    outlets.connect(controls.textFieldRadioName, "textFieldRadioName");
    outlets.connect(controls.textFieldRadioLink, "textFieldRadioLink");
    outlets.connect(controls.buttonAction, "buttonAction");
    outlets.connect(controls.buttonCancel, "buttonCancel");
}

void connectPreferences(PreferencesControls& controls, QWidget& sheet)
{
    const Outlets outlets(sheet);
    outlets.connect(controls.winPreferences, "winPreferences");
    outlets.connect(controls.checkBoxDefaultAutoPlayAtStartApp, "checkBoxDefaultAutoPlayAtStartApp");
    outlets.connect(controls.checkBoxDefaultAutoPlay, "checkBoxDefaultAutoPlay");
    outlets.connect(controls.labelSetDeaultRadio, "labelSetDeaultRadio");
    outlets.connect(controls.popupDefaultButtonListRadio, "popupDefaultButtonListRadio");
    outlets.connect(controls.labelSetDefaultVolume, "labelSetDefaultVolume");
    outlets.connect(controls.sliderDefaultVolume, "sliderDefaultVolume");
    outlets.connect(controls.buttonClosePreferences, "buttonClosePreferences");
}

void connectAboutWindow(AboutControls& controls, QWidget& window)
{
    const Outlets outlets(window);
    outlets.connect(controls.winAbout, "winAbout");
    outlets.connect(controls.imageAppIcon, "imageAppIcon");
    outlets.connect(controls.labelAppName, "labelAppName");
    outlets.connect(controls.labelAppVersion, "labelAppVersion");
    outlets.connect(controls.labelAppLicense, "labelAppLicense");
    outlets.connect(controls.labelAppCopytight, "labelAppCopytight");
    outlets.connect(controls.buttonCloseAbout, "buttonCloseAbout");
}

void connectUpdateNotice(UpdateNoticeControls& controls, QWidget& window)
{
    const Outlets outlets(window);
    outlets.connect(controls.winUpdateNotification, "winUpdateNotification");
    outlets.connect(controls.labelUpdateNotification, "labelUpdateNotification");
    outlets.connect(controls.buttonCloseNotification, "buttonCloseNotification");
}

void connectUpdateWindow(const UpdaterControls& controls, QWidget& window)
{
    const Outlets outlets(window);
    outlets.connect(controls.windowUpdater, "windowUpdater");
    outlets.connect(controls.textFieldLabelUpdateNameApp, "textFieldLabelUpdateNameApp");
    outlets.connect(controls.textFieldLabelUpdateVersionNote, "textFieldLabelUpdateVersionNote");
    outlets.connect(controls.textViewRelaseNote, "textViewRelaseNote");
    outlets.connect(controls.buttonUpdate, "buttonUpdate");
    outlets.connect(controls.buttonRemind, "buttonRemind");
}

void connectMenus(MenuControls& controls, const ProgramMenus& menus)
{
    for (const auto& [item, action] : menus.items())
        bind(controls.*item, tagOf(item), *action);
}

} // namespace sonavel
