// The next turn of Qt's loop.
#pragma once

#include "platform/RunLoop.h"

namespace sonavel {

class QtRunLoop : public RunLoop {
public:
    void performOnNextTurn(std::function<void()> action) override;
};

} // namespace sonavel
