// Connects the outlets of the program to the widgets of the same object name.
#pragma once

#include "ui/Controls.h"

#include <QWidget>

#include <stdexcept>

namespace sonavel {

/// A description of a window lacks a widget that the program needs, or has one of another kind.
class MissingOutlet : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

class ProgramMenus;
struct UpdaterControls;

/// Each connects every outlet that belongs to the window, a top-level widget, or to the menus. They throw
/// MissingOutlet.
void connectMainWindow(MainControls& controls, QWidget& window);
void connectStationListWindow(StationListControls& controls, QWidget& window);
void connectEditSheet(EditSheetControls& controls, QWidget& sheet);
void connectPreferences(PreferencesControls& controls, QWidget& sheet);
void connectAboutWindow(AboutControls& controls, QWidget& window);
void connectUpdateNotice(UpdateNoticeControls& controls, QWidget& window);
void connectUpdateWindow(const UpdaterControls& controls, QWidget& window);
void connectMenus(MenuControls& controls, const ProgramMenus& menus);

/// For as long as the windows beside the main window are not built, connects their controls to the state that the
/// layouts of these windows give them. Changes made meanwhile are rendered when the windows are connected.
void connectInitialState(Controls& controls);

} // namespace sonavel
