// The ports of the core as Qt provides them.
#include "UserInput.h"
#include "qt/QtAlerts.h"
#include "qt/QtEventLoop.h"
#include "qt/QtRunLoop.h"
#include "qt/TerminationSignals.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>

namespace sonavel {
namespace {

/// Does something to the alert as soon as it is open.
void whenOpen(const std::function<void(QMessageBox&)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        act(*box);
    });
}

TEST(Alerts, EachButtonAnswersForItselfAndEscapeForTheLast)
{
    QtAlerts alerts;
    const Alert question{"Quit?", {"Yes", "No"}};
    whenOpen([](QMessageBox& box) { pressKey(box, Qt::Key_Escape); });
    EXPECT_EQ(alerts.runModal(question), secondButtonAnswer);
    whenOpen([](QMessageBox& box) { box.defaultButton()->click(); });
    EXPECT_EQ(alerts.runModal(question), firstButtonAnswer);
    whenOpen([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(alerts.runModal(question), secondButtonAnswer);
    for (const Alert& notice : {Alert{"Full.", {"Continue"}}, Alert{"No network.", {}}}) {
        whenOpen([](QMessageBox& box) { pressKey(box, Qt::Key_Escape); });
        EXPECT_EQ(alerts.runModal(notice), firstButtonAnswer);
    }
}

TEST(Alerts, AStationNamedWithMarkupIsNotTakenAsMarkup)
{
    QtAlerts alerts;
    whenOpen([](QMessageBox& box) {
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.text(), "Remove “<h1>R & B</h1>”?");
        EXPECT_TRUE(box.informativeText().isEmpty());
        EXPECT_EQ(box.buttons().constFirst()->text(), "Yes && go");
        box.close();
    });
    alerts.runModal({"Remove “<h1>R & B</h1>”?", {"Yes & go"}});
}

TEST(EventLoop, ARegistrationMayEndItselfFromInsideItsCallback)
{
    QtEventLoop loop;
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    int calls = 0;
    std::unique_ptr<EventLoop::Registration> reading;
    reading = loop.whenReadable(ends[0], [&, marker = std::string(100, 'x')] {
        reading.reset();
        calls += static_cast<int>(marker.size()) / 100;
    });
    ::close(ends[1]);
    EXPECT_TRUE(handleEventsUntil([&] { return calls > 0; }));
    std::unique_ptr<EventLoop::Registration> timer;
    timer = loop.after(std::chrono::milliseconds(0), [&] {
        timer.reset();
        ++calls;
    });
    EXPECT_TRUE(handleEventsUntil([&] { return calls > 1; }));
    QApplication::processEvents();
    EXPECT_EQ(calls, 2);
    ::close(ends[0]);
}

TEST(RunLoop, TheNextTurnIsNotNow)
{
    QtRunLoop loop;
    bool hasRun = false;
    loop.performOnNextTurn([&] { hasRun = true; });
    EXPECT_FALSE(hasRun);
    EXPECT_TRUE(handleEventsUntil([&] { return hasRun; }));
}

TEST(TerminationSignals, ArriveAsEventsOfTheLoop)
{
    int requests = 0;
    const TerminationSignals termination([&] { ++requests; });
    ::raise(SIGTERM);
    EXPECT_EQ(requests, 0);
    EXPECT_TRUE(handleEventsUntil([&] { return requests == 1; }));
}

} // namespace
} // namespace sonavel
