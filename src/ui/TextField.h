// A line of text, for reading or for typing.
#pragma once

#include "base/Text.h"
#include "ui/Rendered.h"

namespace sonavel {

struct TextFieldState {
    Text stringValue;
    /// Counts the announcements.
    unsigned announcements = 0;

    friend bool operator==(const TextFieldState&, const TextFieldState&) = default;
};

class TextField : public Rendered<TextFieldState> {
public:
    [[nodiscard]] Text stringValue() const { return state().stringValue; }

    void setStringValue(const Text& text) { set(&TextFieldState::stringValue, text); }

    /// Shows the text as something new, also where the same words are there already.
    void announce(const Text& text)
    {
        update([&](TextFieldState& state) {
            state.stringValue = text;
            ++state.announcements;
        });
    }

    /// The user changed the text to this.
    void typedByUser(const Text& text)
    {
        if (store([&](TextFieldState& state) { state.stringValue = text; }))
            action.send();
    }

    /// The user changed the text.
    Action action;
};

} // namespace sonavel
