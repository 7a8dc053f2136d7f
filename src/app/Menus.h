// The menus: from an item's tag to what it does and when it is enabled.
#pragma once

#include "app/Actions.h"
#include "base/NonCopyable.h"

#include <functional>
#include <span>
#include <utility>

namespace sonavel {

class EditSheet;
class EditorWindow;
class LocalizedStrings;
class MenuItem;
class Player;
class PopUpButton;
class StationExport;
class StationImport;
class StationList;
class StationRemoval;
class StationSelection;
class Window;
struct MenuControls;
struct StationListControls;

/// What the items operate on, and what decides whether they are enabled. Borrowed.
struct MenuTargets {
    Player& player;
    StationSelection& stationSelection;
    EditorWindow& editorWindow;
    EditSheet& editSheet;
    StationRemoval& stationRemoval;
    StationImport& stationImport;
    StationExport& stationExport;
    std::function<void()> quitApp;
    std::function<void()> checkUpdate;
    const StationList& stationList;
    const StationListControls& list;
    const PopUpButton& popupbuttonRadioList;
    const Window& winPreferences;
};

/// An item that has a tag.
struct TaggedItem {
    int tag;
    MenuItem MenuControls::*item;
    ListUse listUse;
    void (*perform)(const MenuTargets&);
    bool (*isEnabled)(const MenuTargets&);
};

/// All of them.
[[nodiscard]] std::span<const TaggedItem> taggedItems();

/// The item's tag; `noTag` when it has none.
[[nodiscard]] int tagOf(MenuItem MenuControls::*item);

class Menus : private NonCopyable {
public:
    Menus(MenuControls& controls, MenuTargets targets, const LocalizedStrings& localizedStrings)
        : controls_(controls)
        , targets_(std::move(targets))
        , localizedStrings_(localizedStrings)
    {
    }

    /// Does what belongs to the item's tag; nothing for a tag that no item has.
    void menuView(const MenuItem& sender);

    /// Whether the item is to be enabled now. That of the station list window is named after what choosing it does.
    [[nodiscard]] bool validateMenuItem(const MenuItem& item);

    /// Enables every item as it is to be now: before a menu is shown, and before a key is matched.
    void validateItems();

private:
    MenuControls& controls_;
    const MenuTargets targets_;
    const LocalizedStrings& localizedStrings_;
};

} // namespace sonavel
