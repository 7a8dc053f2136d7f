// The end of the session: SIGTERM, SIGINT and SIGHUP as events of the loop.
#pragma once

#include "base/NonCopyable.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace sonavel {

/// Calls back from the event loop, on the main thread, when the system asks the program to end. At most one object
/// lives at a time. Programs that the process starts are not affected.
class TerminationSignals : private NonCopyable {
public:
    explicit TerminationSignals(std::function<void()> requested);
    /// From then on the signals end the process again.
    ~TerminationSignals();

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace sonavel
