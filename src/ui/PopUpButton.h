// A pop-up list from which one item is chosen.
#pragma once

#include "base/Text.h"
#include "ui/Rendered.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace sonavel {

/// The titles of a pop-up's items; long lists are shared between pop-ups and with whoever renders them.
using ItemTitles = std::shared_ptr<const std::vector<Text>>;

struct PopUpButtonState {
    ItemTitles titles;
    /// −1 when no item is selected.
    int selectedIndex = 0;
    bool isEnabled = false;

    friend bool operator==(const PopUpButtonState&, const PopUpButtonState&) = default;
};

/// Items that have come to stand for nothing stay in the state, and are shown, until the next `setItems`; what is asked
/// about items and the selected one leaves them out.
class PopUpButton : public Rendered<PopUpButtonState> {
public:
    /// `count` gives the number of items that stand for something. Without it all do. It is kept; what it borrows
    /// has to outlive the pop-up's use.
    void setPresentItems(std::function<std::size_t()> count) { presentItems_ = std::move(count); }

    [[nodiscard]] int numberOfItems() const
    {
        return presentItems_ ? static_cast<int>(std::min(itemsShown(), presentItems_()))
                             : static_cast<int>(itemsShown());
    }
    /// −1 when no item is selected.
    [[nodiscard]] int indexOfSelectedItem() const
    {
        return state().selectedIndex < numberOfItems() ? state().selectedIndex : -1;
    }

    /// Absent when no item is selected.
    [[nodiscard]] Text titleOfSelectedItem() const
    {
        const int index = indexOfSelectedItem();
        return index >= 0 ? state().titles->at(static_cast<std::size_t>(index)) : Text();
    }

    /// Replaces all items at once and selects the first, or none when there is none.
    void setItems(ItemTitles titles)
    {
        update([&](PopUpButtonState& state) {
            state.selectedIndex = titles && !titles->empty() ? 0 : -1;
            state.titles = std::move(titles);
        });
    }
    /// Selects the item; an index beyond the items, such as −1, selects none.
    void selectItemAtIndex(int index)
    {
        const bool exists = index >= 0 && index < numberOfItems();
        update([&](PopUpButtonState& state) { state.selectedIndex = exists ? index : -1; });
    }
    void setEnabled(bool enabled) { set(&PopUpButtonState::isEnabled, enabled); }

    /// The user chose an item, the selected one perhaps.
    void chosenByUser(int index)
    {
        if (!state().isEnabled || index < 0 || static_cast<std::size_t>(index) >= itemsShown())
            return;
        store([&](PopUpButtonState& state) { state.selectedIndex = index; });
        action.send();
    }

    Action action;

private:
    [[nodiscard]] std::size_t itemsShown() const { return state().titles ? state().titles->size() : 0; }

    std::function<std::size_t()> presentItems_;
};

} // namespace sonavel
