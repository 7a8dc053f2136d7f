// How an action of the user is performed.
#pragma once

#include "base/NonCopyable.h"

#include <functional>
#include <utility>

namespace sonavel {

class Action;
class ActionQueue;
class TableView;

/// How an action uses the station list.
enum class ListUse {
    None, ///< a cell that is being edited stays open
    AsShown, ///< a cell that is being edited is closed first, and what was typed counts
    Exclusive, ///< as AsShown; besides, no other action reads or changes the list until this one ends
};

/// Each action goes through the queue, and after each, toolbar and menu items are enabled anew. Main thread. Borrows
/// the queue and the table of stations.
class Actions : private NonCopyable {
public:
    using Operation = std::function<void()>;

    /// `validate` enables toolbar and menu items as the state of the program asks for.
    Actions(ActionQueue& queue, TableView& table, Operation validate)
        : queue_(queue)
        , table_(table)
        , validate_(std::move(validate))
    {
    }

    /// Makes `operation` what the control does. This object has to outlive the control's use.
    void wire(Action& action, ListUse listUse, Operation operation);

    /// Enables toolbar and menu items: at the start, before a menu is shown, before a key is matched, and when another
    /// window gets the keyboard focus.
    void validateItems() const { validate_(); }

    /// Calls `observer` after every action.
    void setObserver(std::function<void()> observer) { observer_ = std::move(observer); }

    /// Does something that no control stands for, such as with a file that was dropped on a window. One that waits
    /// gives way to a later one for the same `source`.
    void perform(const void* source, ListUse listUse, Operation operation);

    /// Does it even while another action shows a question or waits for a server, unless that has the list for itself.
    void performAtOnce(const void* source, Operation operation);

private:
    void run(const Operation& operation) const;

    ActionQueue& queue_;
    TableView& table_;
    const Operation validate_;
    std::function<void()> observer_;
    bool isListInUse_ = false; ///< exclusively, by the action that runs or ran last
};

} // namespace sonavel
