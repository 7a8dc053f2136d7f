#include "app/Actions.h"

#include "app/ActionQueue.h"
#include "ui/TableView.h"

namespace sonavel {

void Actions::wire(Action& action, ListUse listUse, Operation operation)
{
    action.set([this, &action, listUse, operation = std::move(operation)] { perform(&action, listUse, operation); });
}

void Actions::perform(const void* source, ListUse listUse, Operation operation)
{
    if (listUse != ListUse::None)
        table_.endEditing();
    queue_.perform(source, [this, listUse, operation = std::move(operation)] {
        isListInUse_ = listUse == ListUse::Exclusive;
        run(operation);
    });
}

void Actions::performAtOnce(const void* source, Operation operation)
{
    if (isListInUse_)
        perform(source, ListUse::None, std::move(operation));
    else
        run(operation);
}

void Actions::run(const Operation& operation) const
{
    operation();
    validateItems();
    if (observer_)
        observer_();
}

} // namespace sonavel
