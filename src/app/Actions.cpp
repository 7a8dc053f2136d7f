#include "app/Actions.h"

#include "app/Gate.h"
#include "app/WinSonavelController.h"
#include "ui/Outlets.h"

#include <array>

namespace sonavel {

namespace {

struct Wire {
    Action& action;
    void (*operation)(WinSonavelController&);
};

} // namespace

Actions::Actions(WinSonavelController& controller, Outlets& outlets, Gate& gate)
{
    using Controller = WinSonavelController;
    const std::array wires{
        Wire{outlets.winSonavel.action, [](Controller& c) { c.quitApp(); }},
        Wire{outlets.popupbuttonRadioList.action, [](Controller& c) { c.stationSelection.popupRadioList(); }},
        Wire{outlets.buttonPlayPause.action, [](Controller& c) { c.player.buttonPlayPause(); }},
        Wire{outlets.buttonStop.action, [](Controller& c) { c.player.buttonStop(); }},
        Wire{outlets.buttonMute.action, [](Controller& c) { c.player.buttonMute(); }},
        Wire{outlets.sliderVolume.action, [](Controller& c) { c.player.sliderVolume(); }},
    };
    for (const Wire& wire : wires)
        wire.action.set([&controller, &gate, control = &wire.action, operation = wire.operation] {
            gate.perform(control, [&controller, operation] { operation(controller); });
        });
}

} // namespace sonavel
