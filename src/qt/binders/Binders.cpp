#include "qt/binders/Binders.h"

#include "qt/binders/Binder.h"
#include "qt/kit/Images.h"
#include "qt/kit/StatusLine.h"
#include "qt/kit/TextConversion.h"

#include <QAction>
#include <QEvent>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <QVariant>

#include <utility>

namespace sonavel {

namespace {

class ImageBinder : public Binder<ImageView, QLabel> {
public:
    ImageBinder(ImageView& image, QLabel& widget)
        : Binder(image, widget)
    {
        const QVariant name = widget.property("imageName");
        image.connect({name.isValid() ? toText(name.toString()) : Text()},
            [this](const ImageViewState& state) { render(state); });
        render(image.state());
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::PaletteChange)
            render(control_.state());
        return QObject::eventFilter(watched, event);
    }

private:
    void render(const ImageViewState& state)
    {
        if (state.image.isAbsent())
            return;
        const QColor color = widget_.palette().color(QPalette::Active, QPalette::WindowText);
        const int size = widget_.fontMetrics().height() * 5 / 4;
        widget_.setPixmap(imageNamed(state.image, color, color).pixmap(QSize(size, size), widget_.devicePixelRatioF()));
    }
};

} // namespace

void bind(ImageView& image, QLabel& widget)
{
    new ImageBinder(image, widget);
}

void bind(TextField& field, QLabel& widget)
{
    new Binder(field, widget);
    widget.setTextFormat(Qt::PlainText);
    field.connect({toText(widget.text())},
        [&widget](const TextFieldState& state) { widget.setText(toQString(state.stringValue)); });
}

void bind(TextField& field, QPlainTextEdit& widget)
{
    new Binder(field, widget);
    field.connect({toText(widget.toPlainText())},
        [&widget](const TextFieldState& state) { widget.setPlainText(toQString(state.stringValue)); });
}

void bind(TextField& field, StatusLine& widget)
{
    new Binder(field, widget);
    field.connect({toText(widget.text())},
        [&widget](const TextFieldState& state) { widget.showText(toQString(state.stringValue)); });
}

void bind(Slider& slider, QSlider& widget)
{
    new Binder(slider, widget);
    const double value = static_cast<double>(widget.value()) / widget.maximum();
    slider.connect({0.0, 1.0, value, widget.isEnabled()}, [&widget](const SliderState& state) {
        const QSignalBlocker silence(widget);
        const double range = state.maxValue - state.minValue;
        const double part = range > 0.0 ? (state.value - state.minValue) / range : 0.0;
        widget.setValue(qRound(part * widget.maximum()));
        widget.setEnabled(state.isEnabled);
    });
    QObject::connect(&widget, &QSlider::valueChanged, &widget, [&slider, &widget](int step) {
        const SliderState& state = slider.state();
        slider.movedByUser(state.minValue + (state.maxValue - state.minValue) * step / widget.maximum());
    });
}

// The reports of actions are queued: a screen reader that uses one waits for an answer, and must not wait for that of a
// question.

void bind(ToolbarItem& item, QAction& action)
{
    new Binder(item, action);
    const QVariant tag = action.property("tag");
    item.connect({tag.isValid() ? tag.toInt() : noTag, action.isEnabled()},
        [&action](const ToolbarItemState& state) { action.setEnabled(state.isEnabled); });
    QObject::connect(
        &action, &QAction::triggered, &action, [&item] { item.pressedByUser(); }, Qt::QueuedConnection);
}

void bind(MenuItem& item, int tag, QAction& action)
{
    new Binder(item, action);
    const Text title = toText(action.text().remove(u'&'));
    item.connect({title, tag, action.isEnabled()}, [&action, titleShown = title](const MenuItemState& state) mutable {
        if (std::exchange(titleShown, state.title) != state.title)
            action.setText(escapeMnemonics(toQString(state.title)));
        action.setEnabled(state.isEnabled);
        action.setChecked(state.isOn);
    });
    const auto report = [&item, &action] {
        action.setChecked(item.state().isOn); // which the toolkit has changed, and the program is to set
        item.chosenByUser();
    };
    QObject::connect(&action, &QAction::triggered, &action, report, Qt::QueuedConnection);
}

} // namespace sonavel
