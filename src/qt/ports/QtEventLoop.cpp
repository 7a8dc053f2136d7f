#include "qt/ports/QtEventLoop.h"

#include <QSocketNotifier>
#include <QTimer>

namespace sonavel {

namespace {

/// Silences its source at once and leaves it to the loop, because a callback may destroy its own registration.
template <class Source> class SourceRegistration : public EventLoop::Registration {
public:
    explicit SourceRegistration(Source* source)
        : source_(source)
    {
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
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [callback = std::move(callback)] {
        const Callback kept = callback;
        kept();
    });
    return std::make_unique<SourceRegistration<QSocketNotifier>>(notifier);
}

std::unique_ptr<EventLoop::Registration> QtEventLoop::after(std::chrono::milliseconds delay, Callback callback)
{
    auto* timer = new QTimer;
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer, &QTimer::timeout, timer, [callback = std::move(callback)] {
        const Callback kept = callback;
        kept();
    });
    timer->start(delay);
    return std::make_unique<SourceRegistration<QTimer>>(timer);
}

} // namespace sonavel
