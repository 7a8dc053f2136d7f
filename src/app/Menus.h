// The menus: from an item's tag to what it does and when it is enabled.
#pragma once

#include <array>

namespace sonavel {

class LocalizedStrings;
class MenuItem;
class WinSonavelController;
struct Outlets;

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

    /// All items that have a tag.
    [[nodiscard]] std::array<MenuItem*, 14> items() const;

private:
    WinSonavelController& controller_;
    const LocalizedStrings& localizedStrings_;
    Outlets& outlets_;
};

} // namespace sonavel
