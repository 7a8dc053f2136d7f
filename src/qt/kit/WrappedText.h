// Plain text in lines of a limited width.
#pragma once

#include <QFont>
#include <QStringList>

class QHelpEvent;
class QWidget;

namespace sonavel {

/// `text` in at most `most` lines, none wider than `width` pixels. Breaks between words, and within a word that is
/// wider than a line; what does not fit into the last line is cut with an ellipsis. So
/// is what exceeds 4,000 UTF-16 units, between characters.
[[nodiscard]] QStringList wrappedLines(const QString& text, const QFont& font, int width, int most);

/// Shows `text`, markup or not, as it is, in a tool tip no wider than the window of `widget`; hides the tool tip for an
/// empty text.
void showPlainToolTip(const QHelpEvent& event, const QString& text, QWidget& widget);

} // namespace sonavel
