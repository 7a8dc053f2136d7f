#include "qt/windows/ProgramMenus.h"

#include "qt/windows/ProgramDialog.h"
#include "ui/Controls.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>

namespace sonavel {

namespace {

using Items = MenuControls;

struct Entry {
    MenuItem MenuControls::*outlet; ///< null for a line between items
    const char* title = nullptr;
    QList<QKeySequence> keys = {};
    bool bearsCheckMark = false;
};

struct Menu {
    const char* title;
    QList<Entry> entries;
};

const QList<Menu>& layout()
{
    static const QList<Menu> menus{
        {"MENU_SONAVEL",
            {{&Items::menuAbout, "MENU_ABOUT"}, {&Items::menuCheckUpdates, "MENU_CHECK_UPDATES"}, {nullptr},
                {&Items::menuPreferences, "MENU_PREFERENCES", {Qt::CTRL | Qt::Key_Comma}}, {nullptr},
                {&Items::menuQuit, "MENU_QUIT", {Qt::CTRL | Qt::Key_Q}}}},
        {"MENU_PLAYBACK",
            {{&Items::menuPlayPause, "MENU_PLAY_PAUSE", {Qt::CTRL | Qt::Key_P, Qt::Key_Space}},
                {&Items::menuStop, "MENU_STOP", {Qt::CTRL | Qt::Key_Period}},
                {&Items::menuMute, "MENU_MUTE", {Qt::CTRL | Qt::Key_M}, true}, {nullptr},
                {&Items::menuPreviousStation, "MENU_PREVIOUS", {Qt::CTRL | Qt::Key_Left}},
                {&Items::menuNextStation, "MENU_NEXT", {Qt::CTRL | Qt::Key_Right}}}},
        {"MENU_STATIONS",
            {{&Items::menuRadioShowEditRadio, "SHOW_EDIT_RADIO_LIST", {Qt::CTRL | Qt::Key_E}}, {nullptr},
                {&Items::menuRadioAdd, "MENU_ADD", {Qt::CTRL | Qt::Key_N}}, {&Items::menuRadioEdit, "MENU_EDIT"},
                {&Items::menuRadioRemove, "MENU_REMOVE"}, {nullptr},
                {&Items::menuRadioImport, "MENU_IMPORT", {Qt::CTRL | Qt::Key_I}},
                {&Items::menuRadioExport, "MENU_EXPORT", {Qt::CTRL | Qt::SHIFT | Qt::Key_E}}}},
    };
    return menus;
}

void addItem(QMenu& menu, QAction& item)
{
    QAction* inWindow = menu.addAction(item.text());
    inWindow->setShortcuts(item.shortcuts());
    inWindow->setAutoRepeat(false);
    inWindow->setCheckable(item.isCheckable());
    const auto follow = [&item, inWindow] {
        inWindow->setText(item.text());
        inWindow->setEnabled(item.isEnabled());
        inWindow->setChecked(item.isChecked());
    };
    follow();
    QObject::connect(&item, &QAction::changed, inWindow, follow);
    QObject::connect(inWindow, &QAction::triggered, &item, &QAction::trigger);
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
    for (const Menu& menu : layout()) {
        for (const Entry& entry : menu.entries) {
            if (entry.outlet == nullptr)
                continue;
            auto* action = new QAction(qtTrId(entry.title), this);
            action->setShortcuts(entry.keys);
            action->setAutoRepeat(false);
            action->setCheckable(entry.bearsCheckMark);
            items_.emplace_back(entry.outlet, action);
        }
    }
    closing_.setShortcut(Qt::CTRL | Qt::Key_W);
    closing_.setAutoRepeat(false);
    const auto closeActiveWindow = [] {
        if (QWidget* window = QApplication::activeWindow())
            window->close();
    };
    connect(&closing_, &QAction::triggered, this, closeActiveWindow, Qt::QueuedConnection);
    QApplication::instance()->installEventFilter(this);
}

void ProgramMenus::addTo(QMainWindow& window)
{
    addTo(*window.menuBar());
    window.addAction(&closing_);
}

void ProgramMenus::addTo(QDialog& sheet)
{
    auto* bar = new QMenuBar(&sheet);
    addTo(*bar);
    sheet.layout()->setMenuBar(bar);
    sheet.addAction(&closing_);
}

void ProgramMenus::addTo(QMenuBar& bar)
{
    auto item = items_.begin();
    for (const Menu& menu : layout()) {
        QMenu& shown = *bar.addMenu(qtTrId(menu.title));
        shown.setFocusProxy(&bar); // the keys of the window go on working while it is open
        connect(&shown, &QMenu::aboutToShow, this, [this] { validate_(); });
        for (const Entry& entry : menu.entries) {
            if (entry.outlet == nullptr)
                shown.addSeparator();
            else
                addItem(shown, *(item++)->second);
        }
    }
}

void ProgramMenus::addKeysTo(QWidget& window)
{
    window.addAction(&closing_);
    for (const auto& [outlet, action] : items_)
        window.addAction(action);
}

/// A disabled action asks nobody before its key is matched, so the moment before is the time to enable it.
bool ProgramMenus::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWidgetType())
        return false;
    auto& widget = *static_cast<QWidget*>(watched);
    if (event->type() == QEvent::Show && dynamic_cast<ProgramDialog*>(&widget) && widget.layout()->menuBar() == nullptr)
        addKeysTo(widget);
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
