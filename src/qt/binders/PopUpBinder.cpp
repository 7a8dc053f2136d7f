#include "qt/binders/PopUpBinder.h"

#include <QAbstractItemView>
#include <QSignalBlocker>

namespace sonavel {

PopUpBinder::PopUpBinder(PopUpButton& popUp, StationComboBox& widget)
    : QObject(&widget)
    , popUp_(popUp)
    , widget_(widget)
{
    widget.setModel(&model_);
    popUp_.connect({nullptr, -1, widget.isEnabled()}, [this](const PopUpButtonState& state) { render(state); });
    // Chosen again is chosen too; a changed index is not always a choice.
    connect(&widget, &QComboBox::activated, this, [this](int index) { popUp_.chosenByUser(index); });
}

PopUpBinder::~PopUpBinder()
{
    popUp_.disconnect();
}

void PopUpBinder::render(const PopUpButtonState& state)
{
    const QSignalBlocker silence(widget_);
    model_.setTitles(state.titles);
    // A screen reader that hears of a change asks which item of the list is selected.
    if (widget_.view()->currentIndex().row() != state.selectedIndex)
        widget_.view()->setCurrentIndex(model_.index(state.selectedIndex, 0));
    widget_.setCurrentIndex(state.selectedIndex);
    widget_.setEnabled(state.isEnabled);
    if (!state.isEnabled)
        widget_.hidePopup();
}

} // namespace sonavel
