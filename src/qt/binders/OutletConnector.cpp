#include "qt/binders/OutletConnector.h"

#include "app/Menus.h"
#include "qt/binders/Binders.h"
#include "qt/binders/ControlNames.h"
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

template <class WindowControls> void connectWindow(WindowControls& controls, QWidget& window)
{
    const Outlets outlets(window);
    forEachControl(controls, [&](auto& control, const char* name) { outlets.connect(control, name); });
}

template void connectWindow(MainControls&, QWidget&);
template void connectWindow(StationListControls&, QWidget&);
template void connectWindow(EditSheetControls&, QWidget&);
template void connectWindow(PreferencesControls&, QWidget&);
template void connectWindow(AboutControls&, QWidget&);
template void connectWindow(UpdateNoticeControls&, QWidget&);
template void connectWindow(const UpdaterControls&, QWidget&);

void connectMenus(MenuControls& controls, const ProgramMenus& menus)
{
    for (const auto& [item, action] : menus.items())
        bind(controls.*item, tagOf(item), *action);
}

} // namespace sonavel
