// A slider.
#pragma once

#include "ui/Rendered.h"

#include <algorithm>
#include <cmath>

namespace sonavel {

struct SliderState {
    double minValue = 0.0;
    double maxValue = 0.0;
    double value = 0.0;
    bool isEnabled = false;

    friend bool operator==(const SliderState&, const SliderState&) = default;
};

/// Its value lies between its minimum and its maximum, also when these change; a value set beyond them becomes the
/// nearer one, and one that is no number changes nothing.
class Slider : public Rendered<SliderState> {
public:
    [[nodiscard]] float floatValue() const { return static_cast<float>(state().value); }

    void setMinValue(double value)
    {
        update([&](SliderState& state) {
            state.minValue = value;
            put(state, state.value);
        });
    }
    void setMaxValue(double value)
    {
        update([&](SliderState& state) {
            state.maxValue = value;
            put(state, state.value);
        });
    }
    void setDoubleValue(double value)
    {
        update([&](SliderState& state) { put(state, value); });
    }
    void setEnabled(bool enabled) { set(&SliderState::isEnabled, enabled); }

    /// The user moved it.
    void movedByUser(double value)
    {
        if (state().isEnabled && store([&](SliderState& state) { put(state, value); }))
            action.send();
    }

    Action action;

private:
    static void put(SliderState& state, double value)
    {
        if (!std::isnan(value))
            state.value = std::max(state.minValue, std::min(value, state.maxValue));
    }
};

} // namespace sonavel
