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

/// Connects every outlet that belongs to the main window, a top-level widget. Throws MissingOutlet.
void connectMainWindow(Outlets& outlets, QWidget& window);

} // namespace sonavel
