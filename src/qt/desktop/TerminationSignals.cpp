#include "qt/desktop/TerminationSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

namespace sonavel {

namespace {

constexpr std::array endingSignals{SIGTERM, SIGINT, SIGHUP};

/// The end of a pipe that a signal handler may write to; the loop reads the other. Initialised before there is any
/// code that could be interrupted.
std::atomic<int>& writeEnd()
{
    static constinit std::atomic<int> end = -1;
    return end;
}

void noteSignal(int)
{
    const int keptError = errno;
    const char note = 1;
    [[maybe_unused]] const ssize_t written = ::write(writeEnd(), &note, 1);
    errno = keptError;
}

void handleSignalsWith(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : endingSignals)
        ::sigaction(number, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> requested)
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    const auto [readEnd, newWriteEnd] = ends;
    writeEnd() = newWriteEnd;
    notifier_ = std::make_unique<QSocketNotifier>(readEnd, QSocketNotifier::Read);
    QObject::connect(
        notifier_.get(), &QSocketNotifier::activated, [readEnd = readEnd, requested = std::move(requested)] {
            char note = 0;
            if (::read(readEnd, &note, 1) == 1)
                requested();
        });
    handleSignalsWith(noteSignal);
}

TerminationSignals::~TerminationSignals()
{
    if (!notifier_)
        return;
    handleSignalsWith(SIG_DFL);
    const auto readEnd = static_cast<int>(notifier_->socket());
    notifier_.reset();
    ::close(readEnd);
    ::close(writeEnd().exchange(-1));
}

} // namespace sonavel
