// Connects the outlets of the program to the widgets of the same object name.
#pragma once

#include "ui/Outlets.h"

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
void connectSplashScreen(Outlets& outlets, QWidget& window);
void connectMainWindow(Outlets& outlets, QWidget& window);
void connectStationListWindow(Outlets& outlets, QWidget& window);
void connectEditSheet(Outlets& outlets, QWidget& sheet);
void connectPreferences(Outlets& outlets, QWidget& sheet);
void connectAboutWindow(Outlets& outlets, QWidget& window);
void connectUpdateNotice(Outlets& outlets, QWidget& window);
void connectUpdateWindow(const UpdaterControls& controls, QWidget& window);
/// For as long as the windows beside the main window are not built, connects their outlets to what the descriptions of
/// these windows say. What the program says meanwhile is rendered when the windows are connected.
void connectBeforehand(Outlets& outlets);
void connectMenus(Outlets& outlets, const ProgramMenus& menus);

} // namespace sonavel
