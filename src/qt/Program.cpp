#include "qt/Program.h"

#include "adapters/SystemClock.h"
#include "adapters/engineclient/EngineProcess.h"
#include "adapters/files/PlistPreferenceDomains.h"
#include "adapters/files/PosixFiles.h"
#include "adapters/files/SingleInstance.h"
#include "adapters/network/CurlHttpClient.h"
#include "app/AppDelegate.h"
#include "app/Ports.h"
#include "app/WinSonavelController.h"
#include "platform/NotificationCenter.h"
#include "qt/LaunchResources.h"
#include "qt/ProgramWindows.h"
#include "qt/binders/Binders.h"
#include "qt/desktop/ConnectivityMonitor.h"
#include "qt/desktop/MediaPlayerBus.h"
#include "qt/desktop/Session.h"
#include "qt/desktop/TerminationSignals.h"
#include "qt/kit/TextConversion.h"
#include "qt/ports/AwaitingHttpClient.h"
#include "qt/ports/QtEventLoop.h"
#include "qt/ports/QtFilePanels.h"
#include "qt/ports/QtPorts.h"
#include "qt/ports/TranslatedStrings.h"
#include "qt/windows/Messages.h"
#include "qt/windows/main/MainWindow.h"
#include "qt/windows/splash/SplashScreen.h"
#include "ui/Controls.h"

#include <QCoreApplication>
#include <QFile>
#include <QUrl>

namespace sonavel {

namespace {

/// In the player's folder in the build tree, in the libexec folder when installed.
std::string enginePath()
{
    const QString folder = QCoreApplication::applicationDirPath() + u'/';
    const QString beside = folder + QStringLiteral("sonavel-engine");
    const QString installed = folder + QStringLiteral(SONAVEL_ENGINE_FOLDER "/sonavel-engine");
    return (QFile::exists(beside) ? beside : installed).toStdString();
}

QLocale localeOf(const LaunchOptions& options)
{
    return options.language.isEmpty() ? QLocale::system() : QLocale(options.language);
}

MainWindow::Emphasis emphasisOf(StreamReport::State state)
{
    if (state == StreamReport::State::Reconnecting)
        return MainWindow::Emphasis::Failure;
    return state == StreamReport::State::Playing ? MainWindow::Emphasis::Usual : MainWindow::Emphasis::Faded;
}

} // namespace

/// In the order of their dependence.
struct Program::Parts {
    Parts(const LaunchOptions& options, LaunchResources provided, std::unique_ptr<SingleInstance> claim,
        const WindowStateStore& windowState)
        : instance(std::move(claim))
        , resources(std::move(provided))
        , filePanels(alerts, resources.temporaryHome ? resources.temporaryHome->path() : QString())
        , strings(localeOf(options))
        , files(toText(options.home))
        , preferenceDomains(files)
        , curl(programBundle().shortVersion)
        , httpClient(curl)
        , engine(eventLoop, notificationCenter, enginePath())
        , controller(ports(), {toText(options.dataServer), toText(options.probe)}, controls)
        , windows(
              controls, controller.actions,
              [this](const Text& path) { controller.stationImport.importRadioListFromFileAtPath(path); }, windowState)
    {
    }

    Ports ports()
    {
        return {
            .alerts = alerts,
            .filePanels = filePanels,
            .files = files,
            .httpClient = httpClient,
            .interfaces = interfaces,
            .streamPlayers = engine,
            .webBrowser = webBrowser,
            .preferenceDomains = preferenceDomains,
            .clock = clock,
            .localizedStrings = strings,
            .notificationCenter = notificationCenter,
            .runLoop = runLoop,
            .process = process,
            .bundle = programBundle(),
        };
    }

    std::unique_ptr<SingleInstance> instance; ///< null with a temporary home directory
    LaunchResources resources;

    QtProcess process;
    QtAlerts messageBoxes;
    CountedAlerts alerts{messageBoxes};
    QtFilePanels filePanels;
    QtInterfaces interfaces;
    QtWebBrowser webBrowser;
    QtRunLoop runLoop;
    QtEventLoop eventLoop;
    TranslatedStrings strings;
    SystemClock clock;
    NotificationCenter notificationCenter;
    PosixFiles files;
    PlistPreferenceDomains preferenceDomains;
    CurlHttpClient curl;
    AwaitingHttpClient httpClient;
    EngineProcess engine;

    Controls controls;
    AppDelegate appDelegate;
    WinSonavelController controller;

    ProgramWindows windows;
    std::unique_ptr<SplashScreen> splashScreen;
    bool isInitialized = false;
    std::unique_ptr<TerminationSignals> terminationSignals;
    std::unique_ptr<SessionEnd> sessionEnd;
    std::unique_ptr<MediaPlayerBus> mediaPlayerBus;
    std::unique_ptr<ConnectivityMonitor> connectivityMonitor;
};

tl::expected<std::unique_ptr<Program>, QString> Program::create(
    LaunchOptions options, std::unique_ptr<SingleInstance> instance, const WindowStateStore& windowState)
{
    return provideResources(options).map([&](LaunchResources resources) {
        return std::unique_ptr<Program>(
            new Program(std::make_unique<Parts>(options, std::move(resources), std::move(instance), windowState)));
    });
}

Program::Program(std::unique_ptr<Parts> parts)
    : parts_(std::move(parts))
{
    parts_->terminationSignals = std::make_unique<TerminationSignals>([this] { endAsTheSessionDoes(); });
    parts_->sessionEnd = std::make_unique<SessionEnd>([this] { keepWhatIsOpen(); }, [this] { endAsTheSessionDoes(); });
    parts_->httpClient.setSlowRequestObserver(
        [this](const HttpRequest& request) { showWaiting(QUrl(toQString(request.address)).host()); },
        [this] { parts_->splashScreen.reset(); });
    parts_->files.setSaveFailureObserver([this](const UserFile& file, const std::error_code& why) {
        parts_->windows.showNotice(saveFailureText(file, why));
    });
    parts_->process.beforeExit([this] { leaveWindows(); });
}

Program::~Program() = default;

void Program::start(std::function<void()> whenVisible)
{
    parts_->controller.init();
    parts_->isInitialized = true;
    parts_->windows.connectMainWindow();
    parts_->appDelegate.window = &parts_->controls.main.winSonavel;
    parts_->controller.streamStatus.addObserver([this] { showNowPlaying(); });
    parts_->windows.mainWindow().afterFirstPaint([this, whenVisible = std::move(whenVisible)] {
        parts_->engine.start();
        parts_->windows.buildOtherWindows();
        joinDesktop();
        whenVisible();
    });
    parts_->controller.awakeFromNib();
    parts_->controller.actions.validateItems();
    parts_->appDelegate.applicationDidFinishLaunching();
}

/// Not needed before the first window is visible.
void Program::joinDesktop()
{
    parts_->mediaPlayerBus = std::make_unique<MediaPlayerBus>(parts_->controller.mediaControls);
    parts_->controller.actions.setObserver([this] { parts_->mediaPlayerBus->update(); });
    parts_->controller.streamStatus.addObserver([this] { parts_->mediaPlayerBus->updateLater(); });
    parts_->connectivityMonitor = std::make_unique<ConnectivityMonitor>([this] { parts_->engine.reconnectNow(); });
    if (parts_->instance)
        parts_->instance->onActivated(parts_->eventLoop, [this] { parts_->controller.mediaControls.raise(); });
}

void Program::showNowPlaying()
{
    const StreamReport& report = parts_->controller.streamStatus.report();
    parts_->windows.mainWindow().showNowPlaying(nowPlayingText(report), emphasisOf(report.state));
}

/// Only before the main window is there, which repaints itself.
void Program::showWaiting(const QString& host)
{
    if (parts_->windows.isMainWindowConnected())
        return;
    if (!parts_->splashScreen) {
        parts_->splashScreen = std::make_unique<SplashScreen>();
        bind(parts_->controls.winSplashScreen, *parts_->splashScreen);
    }
    parts_->splashScreen->setWaitingFor(filledIn("SPLASH_WAITING", host));
    parts_->controls.winSplashScreen.setIsVisible(true);
}

/// Preferences that are not loaded yet must not be stored.
void Program::keepWhatIsOpen()
{
    if (parts_->isInitialized)
        parts_->controller.keepWhatIsOpen();
}

/// As Quit does, without its question.
void Program::endAsTheSessionDoes()
{
    keepWhatIsOpen();
    parts_->appDelegate.applicationWillTerminate();
    parts_->process.exit(0);
}

void Program::leaveWindows()
{
    parts_->windows.savePlaces();
    if (parts_->resources.temporaryHome)
        parts_->resources.temporaryHome->remove();
}

} // namespace sonavel
