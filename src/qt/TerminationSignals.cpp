#include "qt/TerminationSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace sonavel {

namespace {

constexpr int endingSignals[] = {SIGTERM, SIGINT, SIGHUP};

/// Read end and write end: a signal handler may write, and the loop reads.
int signalPipe[2] = {-1, -1};

void noteSignal(int)
{
    const int keptError = errno;
    const char note = 1;
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &note, 1);
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
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    notifier_ = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [requested = std::move(requested)] {
        char note = 0;
        if (::read(signalPipe[0], &note, 1) == 1)
            requested();
    });
    handleSignalsWith(noteSignal);
}

TerminationSignals::~TerminationSignals()
{
    if (!notifier_)
        return;
    handleSignalsWith(SIG_DFL);
    notifier_.reset();
    for (int& end : signalPipe) {
        ::close(end);
        end = -1;
    }
}

} // namespace sonavel
