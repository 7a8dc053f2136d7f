#include "qt/binders/ToolbarItemBinder.h"

#include <QVariant>

namespace sonavel {

ToolbarItemBinder::ToolbarItemBinder(ToolbarItem& item, QAction& action)
    : QObject(&action)
    , item_(item)
{
    const QVariant tag = action.property("tag");
    item_.connect({tag.isValid() ? tag.toInt() : noTag, action.isEnabled()},
        [&action](const ToolbarItemState& state) { action.setEnabled(state.isEnabled); });
    // Queued: a screen reader that presses it waits for an answer, and must not wait for that of a question.
    connect(
        &action, &QAction::triggered, this, [this] { item_.pressedByUser(); }, Qt::QueuedConnection);
}

ToolbarItemBinder::~ToolbarItemBinder()
{
    item_.disconnect();
}

} // namespace sonavel
