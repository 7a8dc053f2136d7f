#include "qt/windows/ProgramMenus.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLayout>
#include <QMenuBar>
#include <QPlainTextEdit>

namespace sonavel {

namespace {

constexpr int noTag = -1;

struct Item {
    const char* name; ///< null for a line between items
    const char* title = nullptr;
    int tag = noTag;
    QList<QKeySequence> keys = {};
};

struct Menu {
    const char* title = nullptr;
    QList<Item> items = {};
};

std::array<Menu, 3> layout()
{
    return {
        Menu{"MENU_SONAVEL",
            {{"menuAbout", "MENU_ABOUT", noTag}, {"menuCheckUpdates", "MENU_CHECK_UPDATES", 4001}, {nullptr},
                {"menuPreferences", "MENU_PREFERENCES", 4000, {Qt::CTRL | Qt::Key_Comma}}, {nullptr},
                {"menuQuit", "MENU_QUIT", 0, {Qt::CTRL | Qt::Key_Q}}}},
        {"MENU_PLAYBACK",
            {{"menuPlayPause", "MENU_PLAY_PAUSE", 2000, {Qt::CTRL | Qt::Key_P, Qt::Key_Space}},
                {"menuStop", "MENU_STOP", 2001, {Qt::CTRL | Qt::Key_Period}},
                {"menuMute", "MENU_MUTE", 2002, {Qt::CTRL | Qt::Key_M}}, {nullptr},
                {"menuPreviousStation", "MENU_PREVIOUS", 2003, {Qt::CTRL | Qt::Key_Left}},
                {"menuNextStation", "MENU_NEXT", 2004, {Qt::CTRL | Qt::Key_Right}}}},
        {"MENU_STATIONS",
            {{"menuRadioShowEditRadio", "SHOW_EDIT_RADIO_LIST", 1003, {Qt::CTRL | Qt::Key_E}}, {nullptr},
                {"menuRadioAdd", "MENU_ADD", 1000, {Qt::CTRL | Qt::Key_N}}, {"menuRadioEdit", "MENU_EDIT", 1001},
                {"menuRadioRemove", "MENU_REMOVE", 1002}, {nullptr},
                {"menuRadioImport", "MENU_IMPORT", 3000, {Qt::CTRL | Qt::Key_I}},
                {"menuRadioExport", "MENU_EXPORT", 3001, {Qt::CTRL | Qt::SHIFT | Qt::Key_E}}}},
    };
}

void addItem(QMenu& menu, const Item& item)
{
    if (item.name == nullptr) {
        menu.addSeparator();
        return;
    }
    QAction* action = menu.addAction(qtTrId(item.title));
    action->setObjectName(QString::fromLatin1(item.name));
    action->setProperty("tag", item.tag);
    action->setShortcuts(item.keys);
    action->setShortcutContext(Qt::ApplicationShortcut);
    action->setAutoRepeat(false);
}

/// A field in which the user types keeps the key for itself.
bool takesSpace(const QWidget& widget)
{
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr
        || qobject_cast<const QComboBox*>(&widget) != nullptr
        || qobject_cast<const QAbstractItemView*>(&widget) != nullptr
        || qobject_cast<const QPlainTextEdit*>(&widget) != nullptr || qobject_cast<const QMenuBar*>(&widget) != nullptr;
}

bool isPlainSpace(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Space && event.modifiers() == Qt::NoModifier;
}

} // namespace

ProgramMenus::ProgramMenus(std::function<void()> validate)
    : validate_(std::move(validate))
{
    const auto contents = layout();
    for (std::size_t index = 0; index < menus_.size(); ++index) {
        QMenu& menu = menus_.at(index);
        menu.setTitle(qtTrId(contents.at(index).title));
        for (const Item& item : contents.at(index).items)
            addItem(menu, item);
        connect(&menu, &QMenu::aboutToShow, this, [this] { validate_(); });
    }
    QApplication::instance()->installEventFilter(this);
}

void ProgramMenus::addTo(QMainWindow& window)
{
    addTo(*window.menuBar());
}

void ProgramMenus::addTo(QDialog& sheet)
{
    auto* bar = new QMenuBar(&sheet);
    addTo(*bar);
    sheet.layout()->setMenuBar(bar);
}

void ProgramMenus::addTo(QMenuBar& bar)
{
    for (QMenu& menu : menus_)
        bar.addMenu(&menu);
}

void ProgramMenus::addKeysTo(QWidget& sheet)
{
    for (const QMenu& menu : menus_)
        sheet.addActions(menu.actions());
}

QAction& ProgramMenus::item(const QString& name) const
{
    for (const QMenu& menu : menus_) {
        if (auto* action = menu.findChild<QAction*>(name))
            return *action;
    }
    qFatal("No menu has the item %s", qPrintable(name));
}

/// A disabled action asks nobody before its key is matched, so the moment before is the time to enable it.
bool ProgramMenus::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWidgetType())
        return false;
    const auto& widget = *static_cast<QWidget*>(watched);
    if (event->type() == QEvent::WindowActivate && widget.isWindow())
        QMetaObject::invokeMethod(this, validate_, Qt::QueuedConnection); // once the program knows of it
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    validate_();
    if (!isPlainSpace(*static_cast<QKeyEvent*>(event)) || !takesSpace(widget))
        return false;
    event->accept();
    return true;
}

} // namespace sonavel
