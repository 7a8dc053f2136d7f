// The ports of the core as Qt provides them.
#include "UserInput.h"
#include "qt/desktop/Session.h"
#include "qt/desktop/TerminationSignals.h"
#include "qt/kit/TextConversion.h"
#include "qt/ports/QtEventLoop.h"
#include "qt/ports/QtFilePanels.h"
#include "qt/ports/QtPorts.h"
#include "support/ScriptedAlerts.h"

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

/// Does something to the dialog as soon as it is open.
template <class Dialog> void whenOpen(const std::function<void(Dialog&)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
}

TEST(Alerts, EachButtonAnswersForItselfAndEscapeForTheLast)
{
    QtAlerts alerts;
    const Alert question{"Quit?", {"Yes", "No"}};
    whenOpen<QMessageBox>([](QMessageBox& box) { pressKey(box, Qt::Key_Escape); });
    EXPECT_EQ(alerts.runModal(question), secondButtonAnswer);
    whenOpen<QMessageBox>([](QMessageBox& box) { box.defaultButton()->click(); });
    EXPECT_EQ(alerts.runModal(question), firstButtonAnswer);
    whenOpen<QMessageBox>([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(alerts.runModal(question), secondButtonAnswer);
    for (const Alert& notice : {Alert{"Full.", {"Continue"}}, Alert{"No network.", {}}}) {
        whenOpen<QMessageBox>([](QMessageBox& box) { pressKey(box, Qt::Key_Escape); });
        EXPECT_EQ(alerts.runModal(notice), firstButtonAnswer);
    }
}

TEST(Alerts, AStationNamedWithMarkupIsNotTakenAsMarkup)
{
    QtAlerts alerts;
    whenOpen<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.text(), "Remove “<h1>R & B</h1>”?");
        EXPECT_TRUE(box.informativeText().isEmpty());
        EXPECT_EQ(box.buttons().constFirst()->text(), "Yes && go");
        box.close();
    });
    alerts.runModal({"Remove “<h1>R & B</h1>”?", {"Yes & go"}});
}

using Confirm = std::function<void(QFileDialog&, const QString&)>;

void enter(QFileDialog& panel, const QString& name)
{
    auto* field = panel.findChild<QLineEdit*>("fileNameEdit");
    panel.activateWindow();
    field->setFocus();
    EXPECT_TRUE(handleEventsUntil([field] { return field->hasFocus(); }));
    field->setText(name);
    pressKey(*field, Qt::Key_Return);
}

/// Ends the panel with whatever was chosen, as a desktop's own panel does.
void endWith(QFileDialog& panel, const QString& name)
{
    panel.selectFile(name);
    panel.findChild<QLineEdit*>("fileNameEdit")->setText(name);
    static_cast<QDialog&>(panel).done(QDialog::Accepted);
}

void cancelPanelThatComesBack()
{
    whenOpen<QFileDialog>([](QFileDialog& panel) {
        EXPECT_TRUE(panel.isVisible());
        panel.reject();
    });
}

void cancelPanelThatBeginsIn(const QDir& place)
{
    whenOpen<QFileDialog>([place](QFileDialog& panel) {
        EXPECT_EQ(panel.directory(), place);
        panel.reject();
    });
}

class FilePanelsTest : public testing::Test {
protected:
    QString make(const QString& name)
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        return file.fileName();
    }
    Text answerToSavePanel() { return panels.runModal(SavePanel{"Radio List.csv", toText(folder.path())}); }

    const QTemporaryDir folder;
    ScriptedAlerts alerts;
    QtFilePanels panels{alerts};
};

TEST_F(FilePanelsTest, AFolderIsEnteredWhateverItsNameAndTheNextPanelBeginsWhereAFileWasChosen)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath("x.csv/deep"));
    const QString file = make("x.csv/list.csv");
    whenOpen<QFileDialog>([&](QFileDialog& panel) {
        enter(panel, folder.filePath("x.csv"));
        EXPECT_TRUE(panel.isVisible());
        panel.reject();
    });
    EXPECT_TRUE(panels.runModal(OpenPanel{"csv"}).isAbsent());
    whenOpen<QFileDialog>([&](QFileDialog& panel) { enter(panel, file); });
    EXPECT_EQ(panels.runModal(OpenPanel{"csv"}), toText(file));
    cancelPanelThatBeginsIn(folder.filePath("x.csv"));
    EXPECT_TRUE(panels.runModal(OpenPanel{"csv"}).isAbsent());
    cancelPanelThatBeginsIn(QDir::home());
    EXPECT_TRUE(QtFilePanels(alerts).runModal(OpenPanel{"csv"}).isAbsent());
}

TEST_F(FilePanelsTest, NothingIsSavedWhereItWouldGoAwayWithTheProgram)
{
    QtFilePanels ofDemo(alerts, folder.path());
    cancelPanelThatBeginsIn(QDir::home());
    EXPECT_TRUE(ofDemo.runModal(SavePanel{"Radio List.csv", toText(folder.path())}).isAbsent());
}

TEST_F(FilePanelsTest, OnlyAFileOfTheOfferedKindIsOpenedHoweverItIsChosen)
{
    for (const Confirm& confirm : {Confirm(enter), Confirm(endWith)}) {
        for (const auto& [name, isOpened] : {std::pair("list.csv", true), {"LIST.CSV", true}, {"list.txt", false},
                 {"csv", false}, {"list.csv~", false}}) {
            const QString file = make(name);
            if (!isOpened)
                alerts.expect("Only files whose names end in “.csv” can be imported.", firstButtonAnswer,
                    cancelPanelThatComesBack);
            whenOpen<QFileDialog>([&](QFileDialog& panel) { confirm(panel, file); });
            EXPECT_EQ(panels.runModal(OpenPanel{"csv"}), isOpened ? toText(file) : Text()) << name;
        }
    }
    EXPECT_EQ(alerts.shown.back().buttonTitles, std::vector<Text>{"Continue"});
}

TEST_F(FilePanelsTest, ARefusedChoiceMayBeFollowedByABetterOne)
{
    make("taken.csv");
    for (const Confirm& confirm : {Confirm(enter), Confirm(endWith)}) {
        alerts.expect("“taken.csv” already exists. Do you want to replace it?", secondButtonAnswer,
            [&] { whenOpen<QFileDialog>([&](QFileDialog& panel) { confirm(panel, "free"); }); });
        whenOpen<QFileDialog>([&](QFileDialog& panel) { confirm(panel, "taken"); });
        EXPECT_EQ(answerToSavePanel(), toText(folder.filePath("free.csv")));
    }
}

TEST_F(FilePanelsTest, AFileIsReplacedOnlyAfterAQuestionAboutItsWholeName)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir("my.lists"));
    for (const char* name : {"Radio List.csv", "taken.csv", "taken.txt", "plain", "my.lists/taken.csv"})
        make(name);
    constexpr int yes = firstButtonAnswer;
    constexpr int no = secondButtonAnswer;
    const struct {
        const char* entered;
        const char* asked; ///< null for no question
        int answer;
        const char* chosen; ///< null for none
    } cases[] = {
        {"Radio List.csv", "Radio List.csv", no, nullptr},
        {"Radio List.csv", "Radio List.csv", yes, "Radio List.csv"},
        {"taken", "taken.csv", no, nullptr},
        {"taken", "taken.csv", yes, "taken.csv"},
        {"my.lists/taken", "taken.csv", yes, "my.lists/taken.csv"},
        {"taken.txt", "taken.txt", yes, "taken.txt"},
        {"free", nullptr, no, "free.csv"},
        {"plain", nullptr, no, "plain.csv"},
        {"free.m3u", nullptr, no, "free.m3u"},
    };
    for (const Confirm& confirm : {Confirm(enter), Confirm(endWith)}) {
        for (const auto& row : cases) {
            SCOPED_TRACE(row.entered);
            if (row.asked)
                alerts.expect("“" + std::string(row.asked) + "” already exists. Do you want to replace it?", row.answer,
                    row.chosen ? [] {} : cancelPanelThatComesBack);
            whenOpen<QFileDialog>([&](QFileDialog& panel) { confirm(panel, QString::fromLatin1(row.entered)); });
            EXPECT_EQ(answerToSavePanel(), row.chosen ? toText(folder.filePath(row.chosen)) : Text());
        }
    }
    EXPECT_EQ(alerts.shown.back().buttonTitles, (std::vector<Text>{"Yes", "No"}));
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

TEST(SessionManager, EndsTheProgramWithoutAskingItsWindows)
{
    int saves = 0;
    int ends = 0;
    const SessionEnd session([&] { ++saves; }, [&] { ++ends; });
    emit qApp->commitDataRequest(*qApp->findChild<QSessionManager*>());
    EXPECT_EQ(saves, 1);
    class : public QWidget {
        void closeEvent(QCloseEvent*) override { ADD_FAILURE() << "asked to close"; }
    } window;
    window.show();
    QEvent end(QEvent::Quit);
    QApplication::sendEvent(qApp, &end);
    EXPECT_EQ(ends, 1);
}

TEST(SessionManager, ItsOptionIsTakenOutOfTheArguments)
{
    const QStringList given{"--language", "de"};
    for (const QStringList& added : {QStringList{"-session", "id_key"}, {"--session", "id_key"}, {"-session"}, {}}) {
        QStringList arguments = added + (added.size() == 1 ? QStringList() : given);
        EXPECT_EQ(takeSessionId(arguments), added.value(1));
        EXPECT_EQ(arguments, added.size() == 1 ? QStringList() : given);
    }
}

TEST(SessionManager, HearsAtEachSaveHowThePlayerIsToComeBackAndThatTheDemoIsNot)
{
    auto* manager = qApp->findChild<QSessionManager*>();
    ASSERT_NE(manager, nullptr);
    const QStringList command{"/usr/bin/sonavel", "--language", "de", "-reverse"};
    for (const bool isDemo : {true, false}) {
        restartWithSession(command, isDemo ? Restart::Never : Restart::WithSession);
        for (const auto signal : {&QGuiApplication::saveStateRequest, &QGuiApplication::commitDataRequest}) {
            manager->setRestartHint(QSessionManager::RestartAnyway);
            manager->setRestartCommand(QStringList());
            emit(qApp->*signal)(*manager);
            EXPECT_EQ(
                manager->restartHint(), isDemo ? QSessionManager::RestartNever : QSessionManager::RestartIfRunning);
            EXPECT_EQ(manager->restartCommand(),
                command + QStringList({"-session", manager->sessionId() + '_' + manager->sessionKey()}));
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
