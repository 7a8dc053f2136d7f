// The player.
#include "adapters/files/SingleInstance.h"
#include "adapters/network/CurlHttpClient.h"
#include "qt/LaunchValues.h"
#include "qt/Program.h"
#include "qt/desktop/DesktopAppearance.h"
#include "qt/desktop/Session.h"
#include "qt/kit/ApplicationStyle.h"
#include "qt/kit/Images.h"
#include "qt/windows/WindowStateStore.h"

#include <QApplication>

#include <fontconfig/fontconfig.h>

#include <array>
#include <iostream>
#include <thread>

namespace {

int print(const sonavel::EarlyExit& exit)
{
    (exit.status == 0 ? std::cout : std::cerr) << qUtf8Printable(exit.text) << std::endl;
    return exit.status;
}

sonavel::EarlyExit noAnswer()
{
    return {1, QStringLiteral("sonavel: another player has this home directory and does not answer")};
}

QStringList withoutName(int argumentCount, char** arguments)
{
    QStringList list;
    for (int index = 1; index < argumentCount; ++index)
        list << QString::fromLocal8Bit(arguments[index]);
    return list;
}

void setUpNames()
{
    QApplication::setApplicationName(QStringLiteral("sonavel"));
    // No display name: it would be put behind the title of every window.
    QApplication::setQuitOnLastWindowClosed(false);
}

/// Whether the desktop has neither a style nor colours of its own.
bool isPlain(const sonavel::ApplicationStyle& style)
{
    return style.baseStyle()->name() == QStringLiteral("fusion") && QApplication::palette() == style.standardPalette();
}

/// The program's palettes are made for one style; a desktop with a style or colours of its own keeps them. Returns the
/// object that follows the desktop's appearance, or null.
std::unique_ptr<sonavel::DesktopAppearance> setUpLooks(
    const sonavel::LaunchOptions& options, const sonavel::WindowStateStore& windowState)
{
    auto* style = new sonavel::ApplicationStyle(options.appearance ? QStringLiteral("fusion") : QString());
    QApplication::setStyle(style);
    if (options.appearance)
        QApplication::setPalette(sonavel::paletteFor(*options.appearance));
    if (options.appearance || !isPlain(*style))
        return nullptr;
    auto appearance = std::make_unique<sonavel::DesktopAppearance>(windowState);
    appearance->applySaved();
    return appearance;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    QStringList given = withoutName(argumentCount, arguments);
    QByteArray session = sonavel::takeSessionId(given).toLocal8Bit();
    const auto options = sonavel::launchOptionsFrom(given, sonavel::readEnvironment(), sonavel::readConfiguration());
    if (!options)
        return print(options.error());

    std::unique_ptr<sonavel::SingleInstance> instance;
    if (!options->home.isEmpty()) {
        auto claim =
            sonavel::SingleInstance::claim(sonavel::SingleInstance::usersRunTimeFolder(), options->home.toStdString());
        if (!claim)
            return claim.error() == sonavel::OtherInstance::Activated ? 0 : print(noAnswer());
        instance = std::move(*claim);
    }

    // Reading the font configuration takes a fifth of a start, so it runs while Qt connects to the display.
    std::jthread fonts([] { FcInit(); });
    // The other options are the program's own, not Qt's.
    QByteArray sessionOption("-session");
    std::array toolkitArguments{arguments[0], sessionOption.data(), session.data()};
    int toolkitArgumentCount = session.isEmpty() ? 1 : 3;
    QApplication application(toolkitArgumentCount, toolkitArguments.data());
    sonavel::restartWithSession(QStringList(QApplication::applicationFilePath()) + options->arguments,
        options->isDemo ? sonavel::Restart::Never : sonavel::Restart::WithSession);
    // Loaded while the main window is built.
    const std::jthread network([] { sonavel::CurlHttpClient::loadLibrary(); });
    setUpNames();
    if (options->isMirrored)
        QApplication::setLayoutDirection(Qt::RightToLeft);
    const sonavel::WindowStateStore windowState(
        options->isDemo ? options->home : sonavel::WindowStateStore::usersStateFolder());
    const auto desktop = setUpLooks(*options, windowState);

    const auto program = sonavel::Program::create(*options, std::move(instance), windowState);
    if (!program)
        return print({1, QStringLiteral("sonavel: ") + program.error()});
    fonts.join();
    (*program)->start([&desktop] {
        // Set late, as the window is visible sooner without it.
        QApplication::setWindowIcon(sonavel::programIcon());
        if (desktop)
            desktop->follow();
    });
    return QApplication::exec();
}
