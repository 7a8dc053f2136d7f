// The menus: from an item's tag to what it does and when it is enabled.
#pragma once

#include <span>

namespace sonavel {

class LocalizedStrings;
class MenuItem;
class WinSonavelController;
struct Outlets;

/// How an action uses the station list.
enum class ListUse {
    None, ///< a cell that is being edited stays open
    AsShown, ///< a cell that is being edited is closed first, and what was typed counts
    Exclusive, ///< as AsShown; besides, no other action reads or changes the list until this one ends
};

/// An item that has a tag.
struct TaggedItem {
    int tag;
    MenuItem Outlets::*item;
    ListUse listUse;
    void (*perform)(WinSonavelController&);
    bool (*isEnabled)(const WinSonavelController&, const Outlets&);
};

/// All of them.
[[nodiscard]] std::span<const TaggedItem> taggedItems();

/// The item's tag; −1 when it has none.
[[nodiscard]] int tagOf(MenuItem Outlets::*item);

/// Main thread. Borrows everything it is given.
class Menus {
public:
    Menus(WinSonavelController& controller, const LocalizedStrings& localizedStrings, Outlets& outlets);
    Menus(const Menus&) = delete;
    Menus& operator=(const Menus&) = delete;
    ~Menus() = default;

    /// Does what belongs to the item's tag; nothing for a tag that no item has.
    void menuView(const MenuItem& sender);

    /// Whether the item is to be enabled now. That of the station list window is named after what choosing it does.
    [[nodiscard]] bool validateMenuItem(const MenuItem& item);

    /// Enables every item as it is to be now: before a menu is shown, and before a key is matched.
    void validateItems();

private:
    WinSonavelController& controller_;
    const LocalizedStrings& localizedStrings_;
    Outlets& outlets_;
};

} // namespace sonavel
