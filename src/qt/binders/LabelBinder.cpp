#include "qt/binders/LabelBinder.h"

#include "qt/kit/TextConversion.h"

namespace sonavel {

LabelBinder::LabelBinder(TextField& field, QLabel& widget)
    : QObject(&widget)
    , field_(field)
{
    widget.setTextFormat(Qt::PlainText);
    field_.connect({toText(widget.text())},
        [&widget](const TextFieldState& state) { widget.setText(toQString(state.stringValue)); });
}

LabelBinder::LabelBinder(TextField& field, QPlainTextEdit& widget)
    : QObject(&widget)
    , field_(field)
{
    field_.connect({toText(widget.toPlainText())},
        [&widget](const TextFieldState& state) { widget.setPlainText(toQString(state.stringValue)); });
}

LabelBinder::~LabelBinder()
{
    field_.disconnect();
}

} // namespace sonavel
