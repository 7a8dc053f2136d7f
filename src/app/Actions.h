// The wiring table: which control does what.
#pragma once

#include <functional>
#include <utility>

namespace sonavel {

class Action;
class Gate;
class WinSonavelController;
struct Outlets;
enum class OpenCell;

/// Sets the action of every control that the user acts on. Each goes through the gate, and after each, toolbar and menu
/// items are enabled anew. Controller, outlets and gate have to outlive this object, and this object the outlets' use.
class Actions {
public:
    Actions(WinSonavelController& controller, Outlets& outlets, Gate& gate);
    Actions(const Actions&) = delete;
    Actions& operator=(const Actions&) = delete;
    ~Actions() = default;

    /// Enables toolbar and menu items as the state of the program asks for: at the start, before a menu is shown,
    /// before a key is matched, and when the keyboard comes to another window.
    void validateItems();

    /// Calls `observer` after every action.
    void setObserver(std::function<void()> observer) { observer_ = std::move(observer); }

    /// Does something that no control stands for, such as with a file that was dropped on a window. One that waits
    /// gives way to a later one for the same `source`.
    void perform(const void* source, std::function<void(WinSonavelController&)> operation);

private:
    void wire(Action& action, OpenCell openCell, std::function<void(WinSonavelController&)> operation);
    void wireMainWindow();
    void wireEditor();
    void wirePreferences();
    void wireItems();
    void wireUpdates();

    WinSonavelController& controller_;
    Outlets& outlets_;
    Gate& gate_;
    std::function<void()> observer_;
};

} // namespace sonavel
