// Alerts that count how often the user answered.
#pragma once

#include "platform/Alerts.h"

namespace sonavel {

/// Hands every alert on. Borrows what it is given.
class CountedAlerts : public Alerts {
public:
    explicit CountedAlerts(Alerts& alerts)
        : alerts_(alerts)
    {
    }

    int runModal(const Alert& alert) override
    {
        const int answer = alerts_.runModal(alert);
        ++answers_;
        return answer;
    }

    [[nodiscard]] unsigned answers() const { return answers_; }

private:
    Alerts& alerts_;
    unsigned answers_ = 0;
};

} // namespace sonavel
