#include "qt/LaunchValues.h"

#include "platform/UserFile.h"

#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace sonavel {

namespace {

constexpr std::array options = {
    LaunchOption{"home", "DIR", "SONAVEL_HOME", "keep stations and preferences below DIR/Library/Preferences"},
    LaunchOption{"data-server", "URL", "SONAVEL_DATA_SERVER", "get the stations from this data server"},
    LaunchOption{"probe", "URL", "SONAVEL_PROBE", "ask this page whether there is an internet connection"},
    LaunchOption{"demo", nullptr, nullptr, "try the player: own server, own streams, nothing kept"},
    LaunchOption{"demo-update", nullptr, nullptr, "with --demo: have a newer version offered"},
    LaunchOption{"language", "CODE", nullptr, "language of the windows, such as en"},
    LaunchOption{"appearance", "NAME", nullptr, "colours: light, dark, high-contrast-light or high-contrast-dark"},
    LaunchOption{"version", nullptr, nullptr, "print the version"},
    LaunchOption{"help", nullptr, nullptr, "print this"},
};

} // namespace

std::span<const LaunchOption> allLaunchOptions()
{
    return options;
}

QMap<QString, QString> readConfiguration()
{
    QMap<QString, QString> configuration;
    const QStringList files =
        QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, QLatin1String(configurationName.data()));
    for (const QString& path : files) {
        const QSettings file(path, QSettings::IniFormat);
        for (const LaunchOption& option : options) {
            const QString key = QString::fromLatin1(option.name);
            // An unquoted comma makes a list of what is one value here.
            if (option.value && file.contains(key) && !configuration.contains(key))
                configuration.insert(key, file.value(key).toStringList().join(u','));
        }
    }
    return configuration;
}

QMap<QString, QString> readEnvironment()
{
    QMap<QString, QString> environment{{QStringLiteral("HOME"), qEnvironmentVariable("HOME")}};
    for (const LaunchOption& option : options) {
        if (option.variable)
            environment.insert(QString::fromLatin1(option.variable), qEnvironmentVariable(option.variable));
    }
    return environment;
}

std::optional<LaunchValue> LaunchValues::given(const char* name) const
{
    const QString option = QString::fromLatin1(name);
    if (!parser.isSet(option))
        return {};
    return LaunchValue{parser.value(option), QStringLiteral("--") + option};
}

std::optional<LaunchValue> LaunchValues::variable(const char* name) const
{
    const QString key = QString::fromLatin1(name);
    if (environment.value(key).isEmpty())
        return {};
    return LaunchValue{environment.value(key), key};
}

std::optional<LaunchValue> LaunchValues::find(const char* name) const
{
    if (auto option = given(name))
        return option;
    const auto isNamed = [&](const LaunchOption& option) { return qstrcmp(option.name, name) == 0; };
    if (auto found = variable(std::find_if(options.begin(), options.end(), isNamed)->variable))
        return found;
    const QString key = QString::fromLatin1(name);
    if (configuration.value(key).isEmpty())
        return {};
    return LaunchValue{configuration.value(key), QStringLiteral("\"%1\" in sonavel.conf").arg(key)};
}

} // namespace sonavel
