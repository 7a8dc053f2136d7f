#include "qt/ports/AwaitingHttpClient.h"

#include <QEventLoop>
#include <QMetaObject>
#include <QTimer>

#include <thread>

namespace sonavel {

HttpResult AwaitingHttpClient::sendSynchronousRequest(const HttpRequest& request)
{
    HttpResult answer;
    QEventLoop loop;
    std::thread worker([&] {
        answer = client_.sendSynchronousRequest(request);
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });

    QTimer patience;
    patience.setSingleShot(true);
    QObject::connect(&patience, &QTimer::timeout, &loop, [&] {
        if (slowRequestObserver_)
            slowRequestObserver_(request);
    });
    patience.start(patience_);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    worker.join();
    if (!patience.isActive() && slowRequestEnded_)
        slowRequestEnded_();
    return answer;
}

} // namespace sonavel
