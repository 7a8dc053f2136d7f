// A window stays alive while a server is slow.
#include "qt/ports/AwaitingHttpClient.h"

#include "UserInput.h"

#include <QPushButton>

#include <gtest/gtest.h>

#include <semaphore>

namespace sonavel {
namespace {

/// Answers on demand.
class HeldHttpClient : public HttpClient {
public:
    HttpResult sendSynchronousRequest(const HttpRequest& request) override
    {
        EXPECT_TRUE(answers.try_acquire_for(std::chrono::seconds(10)));
        return "answer of " + request.address.string();
    }

    std::counting_semaphore<> answers{0};
};

TEST(AwaitingHttp, TheWindowPaintsWhileAServerIsSlow)
{
    HeldHttpClient server;
    AwaitingHttpClient client(server);
    QPushButton button;
    const EventCounter paintings(button, QEvent::Paint);
    button.show();
    ASSERT_TRUE(handleEventsUntil([&] { return paintings.count > 0; }));

    const int paintingsBefore = paintings.count;
    button.update(); // painted by the loop, not at once
    bool hasEnded = false;
    client.setSlowRequestObserver(
        [&](const HttpRequest& request) {
            EXPECT_EQ(request.address, Text("http://slow/"));
            EXPECT_GT(paintings.count, paintingsBefore);
            server.answers.release();
        },
        [&] { hasEnded = true; });
    HttpRequest request;
    request.address = "http://slow/";
    EXPECT_EQ(client.sendSynchronousRequest(request), "answer of http://slow/");
    EXPECT_TRUE(hasEnded);
}

TEST(AwaitingHttp, AQuickAnswerTellsNobodyOfWaiting)
{
    HeldHttpClient server;
    server.answers.release(20);
    AwaitingHttpClient client(server, std::chrono::hours(1));
    client.setSlowRequestObserver([](const HttpRequest&) { FAIL(); }, [] { FAIL(); });
    for (int request = 0; request < 20; ++request)
        EXPECT_TRUE(client.sendSynchronousRequest({}).has_value());
}

} // namespace
} // namespace sonavel
