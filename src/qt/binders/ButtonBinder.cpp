#include "qt/binders/Binder.h"
#include "qt/binders/Binders.h"
#include "qt/kit/Images.h"
#include "qt/kit/Palettes.h"
#include "qt/kit/TextConversion.h"

#include <QAbstractButton>
#include <QEvent>
#include <QSignalBlocker>
#include <QVariant>

#include <utility>

namespace sonavel {

namespace {

class ButtonBinder : public Binder<Button, QAbstractButton> {
public:
    ButtonBinder(Button& button, QAbstractButton& widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void render(const ButtonState& state);
    void renderWords(const ButtonState& state);
    void renderColors(const ButtonState& state);
    void renderEnabling(bool isEnabled);

    bool isRed_ = false;
    bool isRenderingColors_ = false;
    bool lostKeyboard_ = false; ///< in this turn of the loop, to its being disabled
};

ButtonBinder::ButtonBinder(Button& button, QAbstractButton& widget)
    : Binder(button, widget)
{
    ButtonState initialState;
    initialState.title = toText(widget.text());
    if (const QVariant image = widget.property("imageName"); image.isValid())
        initialState.image = toText(image.toString());
    initialState.isEnabled = widget.isEnabled();
    initialState.isOn = widget.isChecked();
    control_.connect(initialState, [this](const ButtonState& state) { render(state); });
    render(control_.state());

    // A screen reader toggles a check box without a click; a plain button is only ever clicked.
    if (widget.isCheckable())
        connect(&widget, &QAbstractButton::toggled, this, [this](bool isOn) { control_.toggledByUser(isOn); });
    else
        connect(&widget, &QAbstractButton::clicked, this, [this] { control_.pressedByUser(); });
    widget.installEventFilter(this);
}

bool ButtonBinder::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && !isRenderingColors_)
        renderColors(control_.state());
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

/// With the image of what it does, it says that too, whatever its title.
void ButtonBinder::renderWords(const ButtonState& state)
{
    const bool plays = state.image == Text("play.png");
    if (!plays && state.image != Text("pause.png")) {
        widget_.setText(escapeMnemonics(toQString(state.title)));
        return;
    }
    widget_.setText(escapeMnemonics(qtTrId(plays ? "BUTTON_PLAY" : "BUTTON_PAUSE")));
    widget_.setToolTip(qtTrId(plays ? "HINT_PLAY" : "HINT_PAUSE"));
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

} // namespace

void bind(Button& button, QAbstractButton& widget)
{
    new ButtonBinder(button, widget);
}

} // namespace sonavel
