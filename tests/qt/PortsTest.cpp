// The ports of the core as Qt provides them.
#include "UserInput.h"
#include "qt/desktop/TerminationSignals.h"
#include "qt/ports/QtAlerts.h"
#include "qt/ports/QtEventLoop.h"
#include "qt/ports/QtFilePanels.h"
#include "qt/ports/QtRunLoop.h"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
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

/// Types a name into the open file panel and confirms it; what happens next is looked at by `then`.
void whenPanelIsOpen(const QString& typed, const std::function<void(QFileDialog&)>& then)
{
    QTimer::singleShot(0, qApp, [typed, then] {
        auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(panel, nullptr);
        panel->findChild<QLineEdit*>("fileNameEdit")->setText(typed);
        pressKey(*panel->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        then(*panel);
    });
}

TEST(FilePanels, AFolderIsEnteredWhateverItsNameAndTheNextPanelBeginsWhereAFileWasChosen)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("x.csv/deep"));
    QFile file(folder.filePath("x.csv/list.csv"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    QtFilePanels panels;
    whenPanelIsOpen(folder.filePath("x.csv"), [](QFileDialog& panel) {
        EXPECT_TRUE(panel.isVisible());
        panel.reject();
    });
    EXPECT_TRUE(panels.runModal(OpenPanel{"csv"}).isAbsent());
    whenPanelIsOpen(file.fileName(), [](QFileDialog&) {});
    EXPECT_EQ(panels.runModal(OpenPanel{"csv"}), Text(file.fileName().toStdString()));
    whenPanelIsOpen({}, [&](QFileDialog& panel) {
        EXPECT_EQ(panel.directory().absolutePath(), folder.filePath("x.csv"));
        panel.reject();
    });
    EXPECT_TRUE(panels.runModal(OpenPanel{"csv"}).isAbsent());
}

TEST(FilePanels, NothingIsSavedWhereItWouldGoAwayWithTheProgram)
{
    const QTemporaryDir folder;
    QtFilePanels panels(folder.path());
    whenPanelIsOpen({}, [](QFileDialog& panel) {
        EXPECT_EQ(panel.directory(), QDir::home());
        panel.reject();
    });
    EXPECT_TRUE(panels.runModal(SavePanel{"Radio List.csv", Text(folder.path().toStdString())}).isAbsent());
}

TEST(FilePanels, AFileIsReplacedOnlyAfterAQuestion)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("Radio List.csv"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    QtFilePanels panels;
    const SavePanel panel{"Radio List.csv", Text(folder.path().toStdString())};
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        QTimer::singleShot(0, qApp, [answer] {
            auto* open = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(open, nullptr);
            QTimer::singleShot(0, qApp, [answer, open] {
                auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                ASSERT_NE(question, nullptr);
                question->button(answer)->click();
                if (answer == QMessageBox::No)
                    open->reject();
            });
            pressKey(*open->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        });
        const Text chosen = panels.runModal(panel);
        EXPECT_EQ(chosen, answer == QMessageBox::Yes ? Text(file.fileName().toStdString()) : Text());
    }
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
