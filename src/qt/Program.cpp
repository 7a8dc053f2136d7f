#include "qt/Program.h"

#include "adapters/CurlHttpClient.h"
#include "adapters/EngineProcess.h"
#include "adapters/OneInstance.h"
#include "adapters/PlistPreferenceDomains.h"
#include "adapters/PosixFiles.h"
#include "adapters/SystemClock.h"
#include "app/Actions.h"
#include "app/AppDelegate.h"
#include "app/Gate.h"
#include "app/MediaControls.h"
#include "app/Ports.h"
#include "app/WinSonavelController.h"
#include "platform/NotificationCenter.h"
#include "qt/AwaitingHttpClient.h"
#include "qt/AwakeningSignals.h"
#include "qt/EditSheetDialog.h"
#include "qt/FirstPaint.h"
#include "qt/MainWindow.h"
#include "qt/MediaPlayerBus.h"
#include "qt/NowPlayingText.h"
#include "qt/OutletConnector.h"
#include "qt/ProgramMenus.h"
#include "qt/QtAlerts.h"
#include "qt/QtEventLoop.h"
#include "qt/QtFilePanels.h"
#include "qt/QtProcess.h"
#include "qt/QtRunLoop.h"
#include "qt/SaveFailure.h"
#include "qt/SplashScreen.h"
#include "qt/StationListWindow.h"
#include "qt/TerminationSignals.h"
#include "qt/TextConversion.h"
#include "qt/TranslatedStrings.h"
#include "qt/WindowMemory.h"
#include "server/DataServer.h"
#include "ui/Outlets.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QUrl>

namespace sonavel {

namespace {

constexpr const char* buildNumber = "1";

/// Beside the player in the build, in the folder for such programs when installed.
std::string enginePath()
{
    const QString folder = QCoreApplication::applicationDirPath();
    const QString beside = folder + QStringLiteral("/sonavel-engine");
    return (QFile::exists(beside) ? beside : folder + QStringLiteral("/../libexec/sonavel-engine")).toStdString();
}

QLocale localeOf(const Settings& settings)
{
    return settings.language.isEmpty() ? QLocale::system() : QLocale(settings.language);
}

DataServerSettings serverSettings(const Settings& settings)
{
    DataServerSettings server;
    server.content = settings.isDemo ? DataServerSettings::Content::Demo : DataServerSettings::Content::Starter;
    server.version = std::string(SONAVEL_VERSION);
    server.build = std::string(buildNumber);
    return server;
}

} // namespace

/// In the order of their dependence.
struct Program::Parts {
    Parts(const Settings& settings, std::unique_ptr<OneInstance> claim, std::unique_ptr<QTemporaryDir> temporaryHome,
        std::unique_ptr<DataServer> server)
        : instance(std::move(claim))
        , throwAwayHome(std::move(temporaryHome))
        , dataServer(std::move(server))
        , strings(localeOf(settings))
        , files(toText(settings.home))
        , preferenceDomains(files)
        , curl(SONAVEL_VERSION)
        , httpClient(curl)
        , engine(eventLoop, notificationCenter, enginePath())
        , controller(ports(), {toText(settings.dataServer), toText(settings.probe)}, outlets)
        , actions(controller, outlets, gate)
        , mediaControls(controller, outlets, actions)
        , windowMemory(settings.isDemo ? settings.home : WindowMemory::usersStateFolder())
    {
    }

    Ports ports()
    {
        return {alerts, filePanels, files, httpClient, engine, preferenceDomains, clock, strings, notificationCenter,
            runLoop, process, {"Sonavel", SONAVEL_VERSION, buildNumber}};
    }

    std::unique_ptr<OneInstance> instance; ///< null where nobody else can have the home directory
    std::unique_ptr<QTemporaryDir> throwAwayHome; ///< null when the home directory is the user's
    std::unique_ptr<DataServer> dataServer; ///< null when others are asked

    QtProcess process;
    QtAlerts alerts;
    QtFilePanels filePanels;
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

    Outlets outlets;
    AppDelegate appDelegate;
    WinSonavelController controller;
    Gate gate;
    Actions actions;
    MediaControls mediaControls;

    WindowMemory windowMemory;
    std::unique_ptr<SplashScreen> splashScreen;
    std::unique_ptr<ProgramMenus> menus;
    std::unique_ptr<MainWindow> mainWindow;
    std::unique_ptr<StationListWindow> stationListWindow;
    QString earlyNotice; ///< to be told once there is a window
    bool isInitialized = false;
    std::unique_ptr<TerminationSignals> terminationSignals;
    std::unique_ptr<MediaPlayerBus> mediaPlayerBus;
    std::unique_ptr<AwakeningSignals> awakeningSignals;
};

std::unique_ptr<Program> Program::create(const Settings& given, std::unique_ptr<OneInstance> instance, QString& whyNot)
{
    Settings settings = given;
    std::unique_ptr<QTemporaryDir> throwAwayHome;
    if (settings.home.isEmpty()) {
        throwAwayHome = std::make_unique<QTemporaryDir>();
        if (!throwAwayHome->isValid()) {
            whyNot = throwAwayHome->errorString();
            return nullptr;
        }
        settings.home = throwAwayHome->path();
    }
    std::unique_ptr<DataServer> dataServer;
    if (settings.dataServer.isEmpty() || settings.probe.isEmpty()) {
        std::string reason;
        dataServer = DataServer::create(serverSettings(settings), reason);
        if (!dataServer) {
            whyNot = QString::fromStdString(reason);
            return nullptr;
        }
        const QString address = toQString(dataServer->baseAddress());
        for (QString* unset : {&settings.dataServer, &settings.probe}) {
            if (unset->isEmpty())
                *unset = address;
        }
    }
    auto parts =
        std::make_unique<Parts>(settings, std::move(instance), std::move(throwAwayHome), std::move(dataServer));
    return std::unique_ptr<Program>(new Program(std::move(parts)));
}

Program::Program(std::unique_ptr<Parts> parts)
    : parts_(std::move(parts))
{
    parts_->terminationSignals = std::make_unique<TerminationSignals>([this] { endAsTheSessionDoes(); });
    parts_->httpClient.setSlowRequestObserver(
        [this](const HttpRequest& request) { showWaiting(QUrl(toQString(request.address)).host()); },
        [this] { parts_->splashScreen.reset(); });
    parts_->files.setWriteFailureObserver([this](const Text& path, const Text& why) { tellSaveFailure(path, why); });
    parts_->process.beforeExit([this] { leaveWindows(); });
}

Program::~Program() = default;

void Program::start(std::function<void()> whenVisible)
{
    parts_->controller.init();
    parts_->isInitialized = true;
    buildWindows();
    afterFirstPaint(*parts_->mainWindow, [this, whenVisible = std::move(whenVisible)] {
        parts_->engine.start();
        buildStationListWindow();
        joinDesktop();
        whenVisible();
    });
    parts_->controller.awakeFromNib();
    parts_->actions.validateItems();
    parts_->appDelegate.applicationDidFinishLaunching();
}

void Program::buildWindows()
{
    parts_->menus = std::make_unique<ProgramMenus>([this] { parts_->actions.validateItems(); });
    connectMenus(parts_->outlets, *parts_->menus);
    connectStationListWindowBeforehand(parts_->outlets);
    buildMainWindow();
}

void Program::buildMainWindow()
{
    parts_->mainWindow = std::make_unique<MainWindow>();
    MainWindow& window = *parts_->mainWindow;
    window.addMenus(*parts_->menus);
    connectMainWindow(parts_->outlets, window);
    parts_->appDelegate.window = &parts_->outlets.winSonavel;
    parts_->windowMemory.restore(window);
    parts_->engine.setNowPlayingObserver([this](const NowPlaying& nowPlaying) { showNowPlaying(nowPlaying); });
    if (!parts_->earlyNotice.isEmpty())
        window.showNotice(parts_->earlyNotice);
}

/// Nothing of it is needed before there is a window.
void Program::joinDesktop()
{
    parts_->mediaPlayerBus = std::make_unique<MediaPlayerBus>(parts_->mediaControls);
    parts_->actions.setObserver([this] { parts_->mediaPlayerBus->update(); });
    parts_->awakeningSignals = std::make_unique<AwakeningSignals>([this] { parts_->engine.renewAtOnce(); });
    // A session that ends tells so before it sends a signal, if at all.
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, parts_->mediaPlayerBus.get(),
        [this] { parts_->controller.preferences.updatePreference(); });
    if (parts_->instance)
        parts_->instance->whenCalled(parts_->eventLoop, [this] { parts_->mediaControls.raise(); });
}

void Program::showNowPlaying(const NowPlaying& nowPlaying)
{
    const bool sounds = nowPlaying.state == NowPlaying::State::Playing;
    parts_->mainWindow->showNowPlaying(
        nowPlayingText(nowPlaying), sounds ? MainWindow::Emphasis::Usual : MainWindow::Emphasis::Faded);
    if (parts_->mediaPlayerBus)
        parts_->mediaPlayerBus->setTitle(onOneLine(toQString(nowPlaying.title)));
}

/// Takes a sixth of a start, so it waits until the main window is painted, and leaves the keyboard there.
void Program::buildStationListWindow()
{
    parts_->stationListWindow = std::make_unique<StationListWindow>(parts_->outlets.tableViewListRadio);
    StationListWindow& window = *parts_->stationListWindow;
    parts_->menus->addTo(window);
    parts_->windowMemory.restore(window);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    connectStationListWindow(parts_->outlets, window);
    window.setAttribute(Qt::WA_ShowWithoutActivating, false);
    window.whenFileDropped([this](const Text& path) {
        parts_->actions.perform(parts_->stationListWindow.get(),
            [path](WinSonavelController& controller) { controller.stationImport.importRadioListFromFileAtPath(path); });
    });
    auto* sheet = new EditSheetDialog(window);
    parts_->menus->addKeysTo(*sheet);
    connectEditSheet(parts_->outlets, *sheet);
}

/// Only before there is a window; the main window stays painted by itself.
void Program::showWaiting(const QString& host)
{
    if (parts_->mainWindow)
        return;
    if (!parts_->splashScreen)
        parts_->splashScreen = std::make_unique<SplashScreen>();
    parts_->splashScreen->showWaitingFor(qtTrId("SPLASH_WAITING").replace(QStringLiteral("%@"), host));
}

void Program::tellSaveFailure(const Text& path, const Text& why)
{
    const QString notice = saveFailureText(path, why);
    if (parts_->stationListWindow && parts_->stationListWindow->isVisible())
        parts_->stationListWindow->showNotice(notice);
    else if (parts_->mainWindow)
        parts_->mainWindow->showNotice(notice);
    else
        parts_->earlyNotice = notice;
}

/// As Quit does, without its question. Preferences that are not loaded yet must not be stored.
void Program::endAsTheSessionDoes()
{
    if (parts_->isInitialized)
        parts_->controller.preferences.updatePreference();
    parts_->appDelegate.applicationWillTerminate();
    parts_->process.exit(0);
}

void Program::leaveWindows()
{
    if (parts_->mainWindow)
        parts_->windowMemory.keep(*parts_->mainWindow);
    if (parts_->stationListWindow)
        parts_->windowMemory.keep(*parts_->stationListWindow);
    if (parts_->throwAwayHome)
        parts_->throwAwayHome->remove();
}

} // namespace sonavel
