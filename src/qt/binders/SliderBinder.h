// Binds a slider of the program to Qt's.
#pragma once

#include "ui/Slider.h"

#include <QSlider>

namespace sonavel {

/// Renders the slider's state into the widget and reports how the user moves it. The widget counts whole steps from 0;
/// its layout stands for the range 0.0 to 1.0. Lives as long as the widget;
/// the slider must live longer.
class SliderBinder : public QObject {
public:
    SliderBinder(Slider& slider, QSlider& widget);
    ~SliderBinder() override;

private:
    void render(const SliderState& state);
    [[nodiscard]] double valueAt(int step) const;

    Slider& slider_;
    QSlider& widget_;
};

} // namespace sonavel
