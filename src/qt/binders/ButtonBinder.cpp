#include "qt/binders/ButtonBinder.h"

#include "qt/kit/Images.h"
#include "qt/kit/Palettes.h"
#include "qt/kit/TextConversion.h"

#include <QEvent>
#include <QSignalBlocker>
#include <QVariant>

#include <utility>

namespace sonavel {

ButtonBinder::ButtonBinder(Button& button, QAbstractButton& widget)
    : QObject(&widget)
    , button_(button)
    , widget_(widget)
{
    ButtonState initialState;
    initialState.title = toText(widget.text());
    if (const QVariant image = widget.property("imageName"); image.isValid())
        initialState.image = toText(image.toString());
    initialState.isEnabled = widget.isEnabled();
    initialState.isOn = widget.isChecked();
    button_.connect(initialState, [this](const ButtonState& state) { render(state); });
    render(button_.state());

    // A screen reader toggles a check box without a click; a plain button is only ever clicked.
    if (widget.isCheckable())
        connect(&widget, &QAbstractButton::toggled, this, [this](bool isOn) { button_.toggledByUser(isOn); });
    else
        connect(&widget, &QAbstractButton::clicked, this, [this] { button_.pressedByUser(); });
    widget.installEventFilter(this);
}

ButtonBinder::~ButtonBinder()
{
    button_.disconnect();
}

bool ButtonBinder::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && !isRenderingColors_)
        renderColors(button_.state());
    return QObject::eventFilter(watched, event);
}

void ButtonBinder::render(const ButtonState& state)
{
    const QSignalBlocker silence(widget_);
    renderWords(state);
    renderColors(state);
    widget_.setChecked(state.isOn);
    renderEnabling(state.isEnabled);
}

/// The toolkit takes the keyboard from what is disabled. An action that disables a button for a moment leaves it there.
void ButtonBinder::renderEnabling(bool isEnabled)
{
    const bool losesKeyboard = widget_.hasFocus() && !isEnabled;
    widget_.setEnabled(isEnabled);
    if (isEnabled && std::exchange(lostKeyboard_, false))
        widget_.setFocus();
    if (!losesKeyboard)
        return;
    lostKeyboard_ = true;
    QMetaObject::invokeMethod(
        this, [this] { lostKeyboard_ = false; }, Qt::QueuedConnection);
}

void ButtonBinder::renderWords(const ButtonState& state)
{
    const QString word = wordForImage(state.image);
    widget_.setText(escapeMnemonics(word.isNull() ? toQString(state.title) : word));
    if (!word.isNull())
        widget_.setToolTip(hintForImage(state.image));
}

void ButtonBinder::renderColors(const ButtonState& state)
{
    isRenderingColors_ = true;
    if (state.titleColor == TitleColor::Red) {
        QPalette red;
        red.setColor(QPalette::ButtonText, readableRed());
        widget_.setPalette(red);
    } else if (isRed_) {
        widget_.setPalette({});
    }
    isRed_ = state.titleColor == TitleColor::Red;
    if (!state.image.isAbsent())
        widget_.setIcon(imageNamed(state.image, widget_.palette()));
    isRenderingColors_ = false;
}

} // namespace sonavel
