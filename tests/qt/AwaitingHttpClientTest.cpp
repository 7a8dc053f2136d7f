// A window stays alive while a server is slow.
#include "qt/ports/AwaitingHttpClient.h"

#include "UserInput.h"

#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>

namespace sonavel {
namespace {

/// Answers on demand.
class HeldHttpClient : public HttpClient {
public:
    HttpResult sendSynchronousRequest(const HttpRequest& request) override
    {
        std::unique_lock lock(mutex_);
        released_.wait_for(lock, std::chrono::seconds(10), [this] { return isReleased_; });
        return "answer of " + request.address.string();
    }
    void release()
    {
        const std::lock_guard lock(mutex_);
        isReleased_ = true;
        released_.notify_all();
    }

private:
    std::mutex mutex_;
    std::condition_variable released_;
    bool isReleased_ = false;
};

class PaintCountingButton : public QPushButton {
public:
    int paintings = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paintings;
        QPushButton::paintEvent(event);
    }
};

TEST(AwaitingHttp, TheWindowPaintsWhileAServerIsSlow)
{
    HeldHttpClient server;
    AwaitingHttpClient client(server);
    PaintCountingButton button;
    button.show();
    ASSERT_TRUE(handleEventsUntil([&] { return button.paintings > 0; }));

    int paintingsBefore = 0;
    bool hasBegun = false;
    bool hasEnded = false;
    QTimer::singleShot(0, [&] {
        paintingsBefore = button.paintings;
        button.update();
    });
    client.setSlowRequestObserver(
        [&](const HttpRequest& request) {
            EXPECT_EQ(request.address, Text("http://slow/"));
            EXPECT_GT(button.paintings, paintingsBefore);
            hasBegun = true;
            server.release();
        },
        [&] { hasEnded = true; });
    HttpRequest request;
    request.address = "http://slow/";
    EXPECT_EQ(client.sendSynchronousRequest(request), "answer of http://slow/");
    EXPECT_TRUE(hasBegun);
    EXPECT_TRUE(hasEnded);
}

TEST(AwaitingHttp, AQuickAnswerTellsNobodyOfWaiting)
{
    HeldHttpClient server;
    server.release();
    AwaitingHttpClient client(server, std::chrono::hours(1));
    client.setSlowRequestObserver([](const HttpRequest&) { FAIL(); }, [] { FAIL(); });
    for (int request = 0; request < 20; ++request)
        EXPECT_TRUE(client.sendSynchronousRequest({}).has_value());
}

} // namespace
} // namespace sonavel
