#include "qt/binders/NotesBinder.h"

#include "qt/kit/TextConversion.h"

namespace sonavel {

NotesBinder::NotesBinder(TextField& field, QPlainTextEdit& widget)
    : QObject(&widget)
    , field_(field)
{
    field_.connect({toText(widget.toPlainText())},
        [&widget](const TextFieldState& state) { widget.setPlainText(toQString(state.stringValue)); });
}

NotesBinder::~NotesBinder()
{
    field_.disconnect();
}

} // namespace sonavel
