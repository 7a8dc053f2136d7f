// Qt's event loop as the adapters use it.
#pragma once

#include "adapters/EventLoop.h"

namespace sonavel {

class QtEventLoop : public EventLoop {
public:
    [[nodiscard]] std::unique_ptr<Registration> whenReadable(int fileDescriptor, Callback callback) override;
    [[nodiscard]] std::unique_ptr<Registration> after(std::chrono::milliseconds delay, Callback callback) override;
};

} // namespace sonavel
