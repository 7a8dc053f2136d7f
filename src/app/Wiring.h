// The wiring tables: which control does what, window by window.
#pragma once

#include <functional>

namespace sonavel {

class Actions;
class EditSheet;
class EditorTable;
class EditorToolbar;
class EditorWindow;
class Menus;
class Player;
class PreferencesWindow;
class StationSelection;
class UpdateCheck;
struct AboutControls;
struct EditSheetControls;
struct MainControls;
struct MenuControls;
struct PreferencesControls;
struct StationListControls;
struct UpdateNoticeControls;

// Each sets the action of every control of its window that the user acts on. All that is given has to outlive the
// controls' use.

void wireMainWindow(Actions& actions, MainControls& controls, Player& player, StationSelection& stationSelection,
    EditorWindow& editorWindow, const std::function<void()>& quit);
void wireStationList(Actions& actions, StationListControls& controls, EditorWindow& editorWindow,
    EditorTable& editorTable, EditorToolbar& editorToolbar);
void wireEditSheet(Actions& actions, EditSheetControls& controls, EditSheet& editSheet);
void wirePreferences(Actions& actions, PreferencesControls& controls, PreferencesWindow& preferencesWindow);
/// The windows of a check come and go with it.
void wireUpdateCheck(Actions& actions, UpdateNoticeControls& controls, UpdateCheck& updateCheck,
    const std::function<void()>& closeNotice);
void wireAbout(Actions& actions, AboutControls& controls);
/// The items for preferences and the About window have actions of their own, whatever their tags say.
void wireMenus(
    Actions& actions, MenuControls& controls, Menus& menus, PreferencesWindow& preferencesWindow, AboutControls& about);

} // namespace sonavel
