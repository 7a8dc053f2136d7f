// The ports of the core as Qt provides them.
#include "UserInput.h"
#include "qt/SessionRestart.h"
#include "qt/Settings.h"
#include "qt/desktop/Session.h"
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
#include <QSessionManager>
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

/// Types a name into the panel and confirms it; `then` runs once what the panel asks is open.
void enter(
    const QString& name, QFileDialog& panel, const std::function<void()>& then = [] {})
{
    auto* field = panel.findChild<QLineEdit*>("fileNameEdit");
    panel.activateWindow();
    field->setFocus();
    EXPECT_TRUE(handleEventsUntil([field] { return field->hasFocus(); }));
    field->setText(name);
    QTimer::singleShot(0, qApp, then);
    pressKey(*field, Qt::Key_Return);
}

/// Types a name into the open file panel and confirms it; what happens next is looked at by `then`.
void whenPanelIsOpen(const QString& typed, const std::function<void(QFileDialog&)>& then)
{
    QTimer::singleShot(0, qApp, [typed, then] {
        auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(panel, nullptr);
        enter(typed, *panel);
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
    whenPanelIsOpen({}, [&](QFileDialog& panel) {
        EXPECT_EQ(panel.directory(), QDir::home());
        panel.reject();
    });
    EXPECT_TRUE(QtFilePanels().runModal(OpenPanel{"csv"}).isAbsent());
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

/// The question or sentence of a panel that was confirmed; null when it has none.
QMessageBox* panelsBox()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

TEST(FilePanels, OnlyAFileOfTheOfferedKindIsOpenedHoweverItsNameIsEntered)
{
    const QTemporaryDir folder;
    QtFilePanels panels;
    for (const auto& [name, isOpened] :
        {std::pair("list.csv", true), {"LIST.CSV", true}, {"list.txt", false}, {"csv", false}, {"list.csv~", false}}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        bool isRefused = false;
        QTimer::singleShot(0, qApp, [&] {
            auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(panel, nullptr);
            enter(file.fileName(), *panel, [&isRefused, panel] {
                QMessageBox* sentence = panelsBox();
                isRefused = sentence != nullptr;
                if (!isRefused)
                    return;
                EXPECT_TRUE(panel->isVisible());
                sentence->close();
                panel->reject();
            });
        });
        const Text chosen = panels.runModal(OpenPanel{"csv"});
        EXPECT_EQ(chosen, isOpened ? Text(file.fileName().toStdString()) : Text()) << name;
        EXPECT_EQ(isRefused, !isOpened) << name;
    }
}

TEST(FilePanels, AFileIsReplacedOnlyAfterAQuestionAboutItsWholeName)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir("my.lists"));
    for (const char* name : {"Radio List.csv", "taken.csv", "taken.txt", "plain", "my.lists/taken.csv"}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
    }
    const struct {
        const char* entered;
        const char* asked; ///< null for no question
        QMessageBox::StandardButton answer;
        const char* chosen; ///< null for none
    } cases[] = {
        {"Radio List.csv", "Radio List.csv", QMessageBox::No, nullptr},
        {"Radio List.csv", "Radio List.csv", QMessageBox::Yes, "Radio List.csv"},
        {"taken", "taken.csv", QMessageBox::No, nullptr},
        {"taken", "taken.csv", QMessageBox::Yes, "taken.csv"},
        {"my.lists/taken", "taken.csv", QMessageBox::Yes, "my.lists/taken.csv"},
        {"taken.txt", "taken.txt", QMessageBox::Yes, "taken.txt"},
        {"free", nullptr, QMessageBox::No, "free.csv"},
        {"plain", nullptr, QMessageBox::No, "plain.csv"},
        {"free.m3u", nullptr, QMessageBox::No, "free.m3u"},
    };
    QtFilePanels panels;
    for (const auto& [entered, asked, answer, chosen] : cases) {
        QTimer::singleShot(0, qApp, [&, name = entered, button = answer, question = asked] {
            auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(panel, nullptr);
            enter(QString::fromLatin1(name), *panel, [=] {
                QMessageBox* box = panelsBox();
                EXPECT_EQ(box != nullptr, question != nullptr) << name;
                if (box == nullptr)
                    return;
                EXPECT_TRUE(box->text().startsWith(QStringLiteral("“%1”").arg(QString::fromLatin1(question))))
                    << qPrintable(box->text());
                box->button(button)->click();
                if (button == QMessageBox::No)
                    panel->reject();
            });
        });
        const Text answered = panels.runModal(SavePanel{"Radio List.csv", Text(folder.path().toStdString())});
        EXPECT_EQ(answered, chosen ? Text(folder.filePath(chosen).toStdString()) : Text()) << entered;
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

TEST(SessionManager, EndsTheProgramWithoutAskingItsWindows)
{
    int ends = 0;
    const SessionEnd session([&] { ++ends; });
    class : public QWidget {
        void closeEvent(QCloseEvent*) override { ADD_FAILURE() << "asked to close"; }
    } window;
    window.show();
    QEvent end(QEvent::Quit);
    QApplication::sendEvent(qApp, &end);
    EXPECT_EQ(ends, 1);
}

TEST(SessionManager, StartsThePlayerAgainWithTheOptionsThatWereGiven)
{
    const QStringList given{"--language", "de"};
    for (const QStringList& added : {QStringList{"-session", "id_key"}, {"--session", "id_key"}, {"-session"}, {}}) {
        QStringList arguments = added + (added.size() == 1 ? QStringList() : given);
        EXPECT_EQ(takeSessionId(arguments), added.value(1));
        EXPECT_EQ(arguments, added.size() == 1 ? QStringList() : given);
    }
    EXPECT_EQ(restartCommand(QStringList("/usr/bin/sonavel") + given, "id", "key").join(' '),
        "/usr/bin/sonavel --language de -session id_key");
}

TEST(SessionManager, HearsAtEachSaveHowThePlayerIsToComeBackAndThatTheDemoIsNot)
{
    auto* manager = qApp->findChild<QSessionManager*>();
    ASSERT_NE(manager, nullptr);
    Settings settings;
    settings.options = QStringList{"--language", "de", "-reverse"};
    for (const bool isDemo : {true, false}) {
        settings.isDemo = isDemo;
        restartWithSession(settings);
        for (const auto signal : {&QGuiApplication::saveStateRequest, &QGuiApplication::commitDataRequest}) {
            manager->setRestartHint(QSessionManager::RestartAnyway);
            manager->setRestartCommand(QStringList());
            emit(qApp->*signal)(*manager);
            EXPECT_EQ(
                manager->restartHint(), isDemo ? QSessionManager::RestartNever : QSessionManager::RestartIfRunning);
            EXPECT_EQ(manager->restartCommand().mid(0, 4), QStringList(qApp->applicationFilePath()) + settings.options);
            EXPECT_EQ(manager->restartCommand().value(4), "-session");
        }
    }
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
