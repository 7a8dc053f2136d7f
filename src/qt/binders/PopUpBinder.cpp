#include "qt/binders/Binder.h"
#include "qt/binders/Binders.h"
#include "qt/kit/StationComboBox.h"
#include "qt/kit/TextConversion.h"

#include <QAbstractItemView>
#include <QAbstractListModel>
#include <QSignalBlocker>

namespace sonavel {

namespace {

/// Shows the shared titles of a pop-up without copying them; each is converted when it is drawn.
class TitlesModel : public QAbstractListModel {
public:
    /// Replaces all rows at once; the very same titles again change nothing.
    void setTitles(const ItemTitles& titles)
    {
        if (titles == titles_)
            return;
        beginResetModel();
        titles_ = titles;
        endResetModel();
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() || !titles_ ? 0 : static_cast<int>(titles_->size());
    }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
            return {};
        return onOneLine(toQString(titles_->at(static_cast<std::size_t>(index.row()))));
    }

private:
    ItemTitles titles_;
};

class PopUpBinder : public Binder<PopUpButton, StationComboBox> {
public:
    PopUpBinder(PopUpButton& popUp, StationComboBox& widget)
        : Binder(popUp, widget)
    {
        widget.setModel(&model_);
        popUp.connect({nullptr, -1, widget.isEnabled()}, [this](const PopUpButtonState& state) { render(state); });
        // Chosen again is chosen too; a changed index is not always a choice.
        connect(&widget, &QComboBox::activated, this, [this](int index) { control_.chosenByUser(index); });
    }

private:
    void render(const PopUpButtonState& state)
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

    TitlesModel model_;
};

} // namespace

void bind(PopUpButton& popUp, StationComboBox& widget)
{
    new PopUpBinder(popUp, widget);
}

} // namespace sonavel
