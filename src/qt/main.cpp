// The player.
#include "adapters/files/SingleInstance.h"
#include "adapters/network/CurlHttpClient.h"
#include "qt/Program.h"
#include "qt/SessionRestart.h"
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

int print(const sonavel::EndAtOnce& end)
{
    (end.status == 0 ? std::cout : std::cerr) << qUtf8Printable(end.text) << std::endl;
    return end.status;
}

sonavel::EndAtOnce noAnswer()
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

/// Whether the desktop brings neither a style nor colours of its own.
bool isPlain(const sonavel::ApplicationStyle& style)
{
    return style.baseStyle()->name() == QStringLiteral("fusion") && QApplication::palette() == style.standardPalette();
}

/// The program's own colours are made for one style; a desktop that has its own keeps them. Answers with what
/// follows the desktop from then on, if anything does.
std::unique_ptr<sonavel::DesktopAppearance> setUpLooks(const sonavel::Settings& settings)
{
    auto* style = new sonavel::ApplicationStyle(settings.appearance ? QStringLiteral("fusion") : QString());
    QApplication::setStyle(style);
    if (settings.appearance)
        QApplication::setPalette(sonavel::paletteFor(*settings.appearance));
    if (settings.appearance || !isPlain(*style))
        return nullptr;
    auto appearance = std::make_unique<sonavel::DesktopAppearance>(
        settings.isDemo ? QString() : sonavel::WindowStateStore::usersStateFolder());
    appearance->applyRemembered();
    return appearance;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    QStringList given = withoutName(argumentCount, arguments);
    QByteArray session = sonavel::takeSessionId(given).toLocal8Bit();
    const sonavel::SettingsOrEnd outcome =
        sonavel::settingsFrom(given, sonavel::readEnvironment(), sonavel::readConfiguration());
    if (const auto* end = std::get_if<sonavel::EndAtOnce>(&outcome))
        return print(*end);
    const auto& settings = std::get<sonavel::Settings>(outcome);

    std::unique_ptr<sonavel::SingleInstance> instance;
    if (!settings.home.isEmpty()) {
        auto claim =
            sonavel::SingleInstance::claim(sonavel::SingleInstance::usersRunTimeFolder(), settings.home.toStdString());
        if (!claim.instance)
            return claim.isOtherCalled ? 0 : print(noAnswer());
        instance = std::move(claim.instance);
    }

    // Reading the settings of the fonts takes a fifth of a start; it is done while Qt finds the display.
    std::jthread fonts([] { FcInit(); });
    // The other options are the program's own, not Qt's.
    QByteArray sessionOption("-session");
    std::array toolkitArguments{arguments[0], sessionOption.data(), session.data()};
    int toolkitArgumentCount = session.isEmpty() ? 1 : 3;
    QApplication application(toolkitArgumentCount, toolkitArguments.data());
    sonavel::restartWithSession(settings);
    // And what the first request needs, while the main window is built.
    const std::jthread network([] { sonavel::CurlHttpClient::loadLibrary(); });
    setUpNames();
    if (settings.isMirrored)
        QApplication::setLayoutDirection(Qt::RightToLeft);
    const auto desktop = setUpLooks(settings);

    QString whyNot;
    const auto program = sonavel::Program::create(settings, std::move(instance), whyNot);
    if (!program)
        return print({1, QStringLiteral("sonavel: ") + whyNot});
    fonts.join();
    program->start([&desktop] {
        // A window manager takes the picture at any time; the window is there sooner without it.
        QApplication::setWindowIcon(sonavel::programIcon());
        if (desktop)
            desktop->follow();
    });
    return QApplication::exec();
}
