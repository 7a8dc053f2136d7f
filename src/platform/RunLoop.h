// The application loop, as far as the core asks for it.
#pragma once

#include "base/NonCopyable.h"

#include <functional>

namespace sonavel {

class RunLoop : private NonCopyable {
public:
    virtual ~RunLoop() = default;

    /// Runs `action` on the loop's next turn, never before this call has returned.
    virtual void performOnNextTurn(std::function<void()> action) = 0;
};

} // namespace sonavel
