// The wiring table: which control does what.
#pragma once

#include <functional>
#include <utility>

namespace sonavel {

class Action;
class Gate;
class WinSonavelController;
struct Outlets;
enum class ListUse;

/// Sets the action of every control that the user acts on. Each goes through the gate, and after each, toolbar and menu
/// items are enabled anew. Controller, outlets and gate have to outlive this object, and this object the outlets' use.
class Actions {
public:
    using Operation = std::function<void(WinSonavelController&)>;

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
    void perform(const void* source, ListUse listUse, Operation operation);

    /// Does it even while another action shows a question or waits for a server, unless that has the list for itself.
    void performAtOnce(const void* source, Operation operation);

private:
    void wire(Action& action, ListUse listUse, Operation operation);
    void run(const Operation& operation);
    void wireMainWindow();
    void wireEditor();
    void wirePreferences();
    void wireItems();
    void wireUpdates();

    WinSonavelController& controller_;
    Outlets& outlets_;
    Gate& gate_;
    std::function<void()> observer_;
    bool isListInUse_ = false; ///< exclusively, by the action that runs or ran last
};

} // namespace sonavel
