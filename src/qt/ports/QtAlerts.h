// Questions and notices as message boxes.
#pragma once

#include "platform/Alerts.h"

namespace sonavel {

class QtAlerts : public Alerts {
public:
    /// Over the active window; closing the box by Escape or its title bar answers for the last button.
    int runModal(const Alert& alert) override;
};

} // namespace sonavel
