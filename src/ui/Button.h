// A push button or check box.
#pragma once

#include "base/Text.h"
#include "ui/Rendered.h"

namespace sonavel {

/// The colour of a button's title. Black is whatever the palette writes its texts in.
enum class TitleColor { Black, Red };

struct ButtonState {
    Text title;
    TitleColor titleColor = TitleColor::Black;
    /// The name of an image that is delivered with the program, such as "play.png"; absent for none.
    Text image;
    bool isEnabled = false;
    /// Whether a check box is ticked, or a button that shows a state is pressed.
    bool isOn = false;

    friend bool operator==(const ButtonState&, const ButtonState&) = default;
};

class Button : public Rendered<ButtonState> {
public:
    [[nodiscard]] Text title() const { return state().title; }

    void setTitle(const Text& title) { set(&ButtonState::title, title); }
    /// Colours the whole title; its text stays.
    void setTitleColor(TitleColor color) { set(&ButtonState::titleColor, color); }
    void setImage(const Text& name) { set(&ButtonState::image, name); }
    void setEnabled(bool enabled) { set(&ButtonState::isEnabled, enabled); }
    void setState(bool on) { set(&ButtonState::isOn, on); }

    /// The user pressed it.
    void pressedByUser()
    {
        if (state().isEnabled)
            action.send();
    }
    /// The user changed the state.
    void toggledByUser(bool on)
    {
        store([&](ButtonState& state) { state.isOn = on; });
        action.send();
    }

    Action action;
};

} // namespace sonavel
