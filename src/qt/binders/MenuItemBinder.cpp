#include "qt/binders/MenuItemBinder.h"

#include "qt/kit/TextConversion.h"

namespace sonavel {

MenuItemBinder::MenuItemBinder(MenuItem& item, int tag, QAction& action)
    : QObject(&action)
    , item_(item)
    , action_(action)
    , titleShown_(toText(action.text().remove(u'&')))
{
    item_.connect({titleShown_, tag, action.isEnabled()}, [this](const MenuItemState& state) { render(state); });
    // Queued: a screen reader that chooses it waits for an answer, and must not wait for that of a question.
    connect(
        &action, &QAction::triggered, this,
        [this] {
            render(item_.state()); // the toolkit has changed a check mark, which is the program's to set
            item_.chosenByUser();
        },
        Qt::QueuedConnection);
}

MenuItemBinder::~MenuItemBinder()
{
    item_.disconnect();
}

void MenuItemBinder::render(const MenuItemState& state)
{
    if (state.title != titleShown_)
        action_.setText(escapeMnemonics(toQString(state.title)));
    titleShown_ = state.title;
    action_.setEnabled(state.isEnabled);
    action_.setChecked(state.isOn);
}

} // namespace sonavel
