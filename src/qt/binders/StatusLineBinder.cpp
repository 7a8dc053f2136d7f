#include "qt/binders/StatusLineBinder.h"

#include "qt/kit/TextConversion.h"

namespace sonavel {

StatusLineBinder::StatusLineBinder(TextField& field, StatusLine& widget)
    : QObject(&widget)
    , field_(field)
{
    field_.connect({toText(widget.text())},
        [&widget](const TextFieldState& state) { widget.showText(toQString(state.stringValue)); });
}

StatusLineBinder::~StatusLineBinder()
{
    field_.disconnect();
}

} // namespace sonavel
