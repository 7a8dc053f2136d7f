#include "qt/binders/SliderBinder.h"

#include <QSignalBlocker>

namespace sonavel {

SliderBinder::SliderBinder(Slider& slider, QSlider& widget)
    : QObject(&widget)
    , slider_(slider)
    , widget_(widget)
{
    const double value = static_cast<double>(widget.value()) / widget.maximum();
    slider_.connect({0.0, 1.0, value, widget.isEnabled()}, [this](const SliderState& state) { render(state); });
    connect(&widget, &QSlider::valueChanged, this, [this](int step) { slider_.movedByUser(valueAt(step)); });
}

SliderBinder::~SliderBinder()
{
    slider_.disconnect();
}

void SliderBinder::render(const SliderState& state)
{
    const QSignalBlocker silence(widget_);
    const double range = state.maxValue - state.minValue;
    const double part = range > 0.0 ? (state.value - state.minValue) / range : 0.0;
    widget_.setValue(qRound(part * widget_.maximum()));
    widget_.setEnabled(state.isEnabled);
}

double SliderBinder::valueAt(int step) const
{
    const SliderState& state = slider_.state();
    return state.minValue + (state.maxValue - state.minValue) * step / widget_.maximum();
}

} // namespace sonavel
