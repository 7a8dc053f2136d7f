// The menus of the program, as they stand in the menu bar of every window.
#pragma once

#include <QAction>
#include <QMainWindow>

#include <functional>
#include <utility>
#include <vector>

class QDialog;
class QMenuBar;

namespace sonavel {

class MenuItem;
struct MenuControls;

/// One action for each item, and for each window items of its own that look like it and choose it. A key works in the
/// active window, which Ctrl+W closes. Keys that a control needs stay with it: Space, where it presses or types, and
/// whatever edits a text.
class ProgramMenus : public QObject {
public:
    using Item = std::pair<MenuItem MenuControls::*, QAction*>;

    /// `validate` enables the items as they are to be; it is called before a menu is shown, before a key is matched,
    /// and when the keyboard has come to another window.
    explicit ProgramMenus(std::function<void()> validate);

    void addTo(QMainWindow& window);
    /// For a sheet that leaves the menus usable, though it blocks the window that has them otherwise.
    void addTo(QDialog& sheet);

    [[nodiscard]] const std::vector<Item>& items() const { return items_; }

    /// Gives a dialog of the program that has no menus their keys when it is shown.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addTo(QMenuBar& bar);
    void addKeysTo(QWidget& window);

    std::function<void()> validate_;
    std::vector<Item> items_;
    QAction closing_;
};

} // namespace sonavel
