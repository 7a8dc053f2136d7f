// Binds the controls of the program to widgets.
#pragma once

#include "ui/Controls.h"

class QAbstractButton;
class QAction;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QSlider;
class QWidget;

namespace sonavel {

class StationComboBox;
class StationTable;
class StatusLine;

// Each takes over what the widget shows at first, then renders the control's state and reports what the user does,
// until the widget goes away. The control must live longer.

/// Opens a sheet so that it blocks its parent alone, and reports which window has the keyboard. The user's wish to
/// close the window is reported, and the window stays until the program hides it.
void bind(Window& window, QWidget& widget);

/// The widget's property "imageName" names the image that it shows at first.
void bind(Button& button, QAbstractButton& widget);

/// Draws the image in the label's colour, a little higher than a line of its text. The label's property "imageName"
/// names the image that it shows at first; without it the label keeps the picture that it has.
void bind(ImageView& image, QLabel& widget);

void bind(PopUpButton& popUp, StationComboBox& widget);

/// The widget counts whole steps from 0; its layout stands for the range 0.0 to 1.0.
void bind(Slider& slider, QSlider& widget);

/// Rows, selection and scroll requests; all of it by ranges, never row by row.
void bind(TableView& table, StationTable& widget);

/// Renders what the program makes of the typed text as the least change, so that the caret stays where the user types
/// and what he typed can be undone. While an input method composes, nothing is reported; a text that the program sets
/// then ends the composition.
void bind(TextField& field, QLineEdit& widget);
/// As plain text, whatever it contains.
void bind(TextField& field, QLabel& widget);
void bind(TextField& field, QPlainTextEdit& widget);
/// Each text that the field is given, for the line's usual time.
void bind(TextField& field, StatusLine& widget);

/// The action's property "tag" is the item's tag.
void bind(ToolbarItem& item, QAction& action);

/// The title that the action has keeps its mnemonic for as long as the program gives it no other.
void bind(MenuItem& item, int tag, QAction& action);

} // namespace sonavel
