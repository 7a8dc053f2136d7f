#include "qt/windows/ProgramMenus.h"

#include "ui/Outlets.h"

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

struct Item {
    MenuItem Outlets::*outlet; ///< null for a line between items
    const char* title = nullptr;
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
            {{&Outlets::menuAbout, "MENU_ABOUT"}, {&Outlets::menuCheckUpdates, "MENU_CHECK_UPDATES"}, {nullptr},
                {&Outlets::menuPreferences, "MENU_PREFERENCES", {Qt::CTRL | Qt::Key_Comma}}, {nullptr},
                {&Outlets::menuQuit, "MENU_QUIT", {Qt::CTRL | Qt::Key_Q}}}},
        {"MENU_PLAYBACK",
            {{&Outlets::menuPlayPause, "MENU_PLAY_PAUSE", {Qt::CTRL | Qt::Key_P, Qt::Key_Space}},
                {&Outlets::menuStop, "MENU_STOP", {Qt::CTRL | Qt::Key_Period}},
                {&Outlets::menuMute, "MENU_MUTE", {Qt::CTRL | Qt::Key_M}}, {nullptr},
                {&Outlets::menuPreviousStation, "MENU_PREVIOUS", {Qt::CTRL | Qt::Key_Left}},
                {&Outlets::menuNextStation, "MENU_NEXT", {Qt::CTRL | Qt::Key_Right}}}},
        {"MENU_STATIONS",
            {{&Outlets::menuRadioShowEditRadio, "SHOW_EDIT_RADIO_LIST", {Qt::CTRL | Qt::Key_E}}, {nullptr},
                {&Outlets::menuRadioAdd, "MENU_ADD", {Qt::CTRL | Qt::Key_N}}, {&Outlets::menuRadioEdit, "MENU_EDIT"},
                {&Outlets::menuRadioRemove, "MENU_REMOVE"}, {nullptr},
                {&Outlets::menuRadioImport, "MENU_IMPORT", {Qt::CTRL | Qt::Key_I}},
                {&Outlets::menuRadioExport, "MENU_EXPORT", {Qt::CTRL | Qt::SHIFT | Qt::Key_E}}}},
    };
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
        for (const auto& item : contents.at(index).items)
            addItem(menu, item.outlet, item.title, item.keys);
        connect(&menu, &QMenu::aboutToShow, this, [this] { validate_(); });
    }
    QApplication::instance()->installEventFilter(this);
}

void ProgramMenus::addItem(QMenu& menu, MenuItem Outlets::*outlet, const char* title, const QList<QKeySequence>& keys)
{
    if (outlet == nullptr) {
        menu.addSeparator();
        return;
    }
    QAction* action = menu.addAction(qtTrId(title));
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::ApplicationShortcut);
    action->setAutoRepeat(false);
    items_.emplace_back(outlet, action);
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
