// The wiring table: which control does what.
#pragma once

namespace sonavel {

class Gate;
class WinSonavelController;
struct Outlets;

/// Sets the action of every control that the user acts on. Each goes through the gate. Controller and gate have to
/// outlive the outlets' actions.
class Actions {
public:
    Actions(WinSonavelController& controller, Outlets& outlets, Gate& gate);
};

} // namespace sonavel
