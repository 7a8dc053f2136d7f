// What the adapters need of the program's event loop.
#pragma once

#include "base/NonCopyable.h"

#include <chrono>
#include <functional>
#include <memory>

namespace sonavel {

/// Calls back on the main thread, never from inside one of these operations.
class EventLoop : private NonCopyable {
public:
    using Callback = std::function<void()>;

    /// Keeps a callback registered; destroying it, also from inside the callback, ends that.
    class Registration : private NonCopyable {
    public:
        virtual ~Registration() = default;
    };

    virtual ~EventLoop() = default;

    /// Calls `callback` whenever the file descriptor has something to read or its other end is gone.
    [[nodiscard]] virtual std::unique_ptr<Registration> whenReadable(int fileDescriptor, Callback callback) = 0;

    /// Calls `callback` once after `delay`.
    [[nodiscard]] virtual std::unique_ptr<Registration> after(std::chrono::milliseconds delay, Callback callback) = 0;
};

} // namespace sonavel
