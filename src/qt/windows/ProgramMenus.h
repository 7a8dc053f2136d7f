// The menus of the program, as they stand in the menu bar of every window.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>

#include <array>
#include <functional>
#include <utility>
#include <vector>

class QDialog;
class QMenuBar;

namespace sonavel {

class MenuItem;
struct Outlets;

/// One action per item, shared by all menu bars, so that its key is known once to the whole application. Keys that a
/// control needs stay with it: Space, where it presses or types, and whatever edits a text.
class ProgramMenus : public QObject {
public:
    using Item = std::pair<MenuItem Outlets::*, QAction*>;

    /// `validate` enables the items as they are to be; it is called before a menu is shown, before a key is matched,
    /// and when the keyboard has come to another window.
    explicit ProgramMenus(std::function<void()> validate);

    void addTo(QMainWindow& window);
    /// For a sheet that leaves the menus usable, though it blocks the window that has them otherwise.
    void addTo(QDialog& sheet);
    /// The keys alone, for a sheet beside which another window has the menus.
    void addKeysTo(QWidget& sheet);

    [[nodiscard]] const std::vector<Item>& items() const { return items_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addItem(QMenu& menu, MenuItem Outlets::*outlet, const char* title, const QList<QKeySequence>& keys);
    void addTo(QMenuBar& bar);

    std::function<void()> validate_;
    std::array<QMenu, 3> menus_;
    std::vector<Item> items_;
};

} // namespace sonavel
