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

/// Connects the controls of one window (a struct of `ui/Controls.h`, or UpdaterControls) to the objects of the same
/// names in `window`, a top-level widget. Throws MissingOutlet.
template <class WindowControls> void connectWindow(WindowControls& controls, QWidget& window);

void connectMenus(MenuControls& controls, const ProgramMenus& menus);

/// For as long as the windows beside the main window are not built, connects their controls to the state that the
/// layouts of these windows give them. Changes made meanwhile are rendered when the windows are connected.
void connectInitialState(Controls& controls);

} // namespace sonavel
