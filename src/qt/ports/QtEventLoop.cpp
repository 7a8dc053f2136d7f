#include "qt/ports/QtEventLoop.h"

#include <QSocketNotifier>
#include <QTimer>

namespace sonavel {

namespace {

/// Silences its source at once and leaves it to the loop, because a callback may destroy its own registration.
template <class Source> class SourceRegistration : public EventLoop::Registration {
public:
    template <class Signal>
    SourceRegistration(Source* source, Signal signal, EventLoop::Callback callback)
        : source_(source)
    {
        QObject::connect(source, signal, source, [callback = std::move(callback)] {
            const EventLoop::Callback kept = callback;
            kept();
        });
    }
    ~SourceRegistration() override
    {
        source_->disconnect();
        if constexpr (std::is_same_v<Source, QSocketNotifier>)
            source_->setEnabled(false);
        source_->deleteLater();
    }

private:
    Source* source_;
};

} // namespace

std::unique_ptr<EventLoop::Registration> QtEventLoop::whenReadable(int fileDescriptor, Callback callback)
{
    auto* notifier = new QSocketNotifier(fileDescriptor, QSocketNotifier::Read);
    return std::make_unique<SourceRegistration<QSocketNotifier>>(
        notifier, &QSocketNotifier::activated, std::move(callback));
}

std::unique_ptr<EventLoop::Registration> QtEventLoop::after(std::chrono::milliseconds delay, Callback callback)
{
    auto* timer = new QTimer;
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
    timer->start(delay);
    return std::make_unique<SourceRegistration<QTimer>>(timer, &QTimer::timeout, std::move(callback));
}

} // namespace sonavel
