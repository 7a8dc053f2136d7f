// What all controls have in common: a state that the program owns and a toolkit renders.
#pragma once

#include "base/NonCopyable.h"

#include <functional>
#include <type_traits>
#include <utility>

namespace sonavel {

/// The state of one control. Until a toolkit is attached, nothing said to the control leaves a trace, and what is read
/// is the empty state. Main thread.
template <class State> class Rendered : private NonCopyable {
public:
    using Render = std::function<void(const State&)>;

    [[nodiscard]] bool isConnected() const { return connected_; }
    [[nodiscard]] const State& state() const { return state_; }

    /// Attaches the toolkit: takes over what its layout says; from then on every change is rendered. `render` may be
    /// empty where nobody looks, or not yet: a control that is connected already keeps its state, which is rendered.
    void connect(State initialState, Render render = {})
    {
        render_ = std::move(render);
        if (std::exchange(connected_, true))
            renderAgain();
        else
            state_ = std::move(initialState);
    }

    /// Detaches it again, as when its window goes away.
    void disconnect()
    {
        connected_ = false;
        render_ = {};
        state_ = State();
    }

protected:
    /// Applies `change` and renders once, or not at all if nothing changed.
    template <class Change> void update(Change&& change)
    {
        if (store(std::forward<Change>(change)) && render_)
            render_(state_);
    }

    /// The same for one field.
    template <class Value> void set(Value State::*field, const std::type_identity_t<Value>& value)
    {
        update([&](State& state) { state.*field = value; });
    }

    /// Applies a change that the toolkit shows already, because the user made it there. Whether anything changed.
    template <class Change> bool store(Change&& change)
    {
        if (!connected_)
            return false;
        State next = state_;
        std::forward<Change>(change)(next);
        if (next == state_)
            return false;
        state_ = std::move(next);
        return true;
    }

    void renderAgain() const
    {
        if (connected_ && render_)
            render_(state_);
    }

private:
    State state_;
    Render render_;
    bool connected_ = false;
};

/// What a control does when the user acts on it. Set by the wiring of the program.
class Action {
public:
    void set(std::function<void()> action) { action_ = std::move(action); }
    void send() const
    {
        if (action_)
            action_();
    }

private:
    std::function<void()> action_;
};

} // namespace sonavel
