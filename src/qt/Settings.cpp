#include "qt/Settings.h"

#include "platform/Bundle.h"
#include "playback/StreamAddress.h"
#include "qt/kit/TextConversion.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>

#include <array>

namespace sonavel {

namespace {

constexpr const char* wellKnownPage = "https://www.debian.org/";

/// A mistake in what the player was started with, said in one line.
struct UsageError {
    QString text;
};

/// A value that may be an address, as a complaint shows it.
QString shown(const QString& value)
{
    return toQString(withoutUserInformation(toText(value)));
}

struct Option {
    const char* name;
    const char* value; ///< what `--help` calls its value; null when it takes none
    const char* variable; ///< of the environment; null for none
    const char* meaning;
};

constexpr std::array options = {
    Option{"home", "DIR", "SONAVEL_HOME", "keep stations and preferences below DIR/Library/Preferences"},
    Option{"data-server", "URL", "SONAVEL_DATA_SERVER", "get the stations from this data server"},
    Option{"probe", "URL", "SONAVEL_PROBE", "ask this page whether there is an internet connection"},
    Option{"demo", nullptr, nullptr, "try the player: own server, own streams, nothing kept"},
    Option{"demo-update", nullptr, nullptr, "with --demo: have a newer version offered"},
    Option{"language", "CODE", nullptr, "language of the windows, such as en"},
    Option{"appearance", "NAME", nullptr, "colours: light, dark, high-contrast-light or high-contrast-dark"},
    Option{"version", nullptr, nullptr, "print the version"},
    Option{"help", nullptr, nullptr, "print this"},
};

QString helpText()
{
    QString text = QStringLiteral("Usage: sonavel [options]\nPlays internet radio.\n");
    for (const Option& option : options) {
        QString left = QStringLiteral("  --%1 %2").arg(QLatin1String(option.name), QLatin1String(option.value));
        text += u'\n' + left.leftJustified(26) + QLatin1String(option.meaning);
        if (option.variable)
            text += QStringLiteral(" ($%1)").arg(QLatin1String(option.variable));
    }
    return text;
}

void parse(QCommandLineParser& parser, const QStringList& arguments)
{
    for (const Option& option : options)
        parser.addOption(
            {QString::fromLatin1(option.name), QString::fromLatin1(option.meaning), QString::fromLatin1(option.value)});
    // The parser skips the name of the program.
    if (!parser.parse(QStringList{QString()} + arguments))
        throw UsageError{parser.errorText()};
    if (!parser.positionalArguments().isEmpty())
        throw UsageError{
            QStringLiteral("Unexpected argument \"%1\".").arg(shown(parser.positionalArguments().constFirst()))};
}

/// One value and where it came from, for complaints.
struct Found {
    QString value;
    QString source;
};

/// Finds values in the order of their sources.
class Lookup {
public:
    Lookup(const QCommandLineParser& parser, const QMap<QString, QString>& environment,
        const QMap<QString, QString>& configuration)
        : parser_(parser)
        , environment_(environment)
        , configuration_(configuration)
    {
    }

    /// The value of the option alone. An option that is given empty is a value, an empty variable is none.
    [[nodiscard]] std::optional<Found> given(const char* name) const
    {
        const QString option = QString::fromLatin1(name);
        if (!parser_.isSet(option))
            return {};
        return Found{parser_.value(option), QStringLiteral("--") + option};
    }

    [[nodiscard]] std::optional<Found> find(const char* name) const
    {
        if (auto option = given(name))
            return option;
        for (const Option& option : options) {
            if (option.variable == nullptr || qstrcmp(option.name, name) != 0)
                continue;
            const QString variable = QString::fromLatin1(option.variable);
            if (!environment_.value(variable).isEmpty())
                return Found{environment_.value(variable), variable};
        }
        const QString key = QString::fromLatin1(name);
        if (!configuration_.value(key).isEmpty())
            return Found{configuration_.value(key), QStringLiteral("\"%1\" in sonavel.conf").arg(key)};
        return {};
    }

private:
    const QCommandLineParser& parser_;
    const QMap<QString, QString>& environment_;
    const QMap<QString, QString>& configuration_;
};

QString folder(const Found& found)
{
    const QFileInfo file(found.value);
    if (found.value.isEmpty() || !file.isDir())
        throw UsageError{QStringLiteral("%1: \"%2\" is not a directory.").arg(found.source, found.value)};
    return QDir::cleanPath(file.absoluteFilePath());
}

QString webAddress(const Found& found)
{
    const QUrl url(found.value, QUrl::StrictMode);
    const bool isWeb = url.scheme() == u"http" || url.scheme() == u"https";
    if (!url.isValid() || !isWeb || url.host().isEmpty())
        throw UsageError{
            QStringLiteral("%1: \"%2\" is not an http or https address.").arg(found.source, shown(found.value))};
    return QString::fromLatin1(url.toEncoded());
}

QString baseAddress(const Found& found)
{
    QString address = webAddress(found);
    if (!address.endsWith(u'/'))
        address += u'/';
    return address;
}

Appearance appearance(const Found& found)
{
    if (const auto appearance = appearanceNamed(found.value))
        return *appearance;
    throw UsageError{QStringLiteral("%1: \"%2\" is none of %3.")
                         .arg(found.source, found.value, appearanceNames().join(QStringLiteral(", ")))};
}

QString homeFolder(const Lookup& lookup, const QMap<QString, QString>& environment)
{
    if (const auto found = lookup.find("home"))
        return folder(*found);
    if (environment.value(QStringLiteral("HOME")).isEmpty())
        throw UsageError{QStringLiteral("There is no home directory: set HOME or give --home.")};
    return folder({environment.value(QStringLiteral("HOME")), QStringLiteral("HOME")});
}

QStringList givenOptions(const Lookup& lookup, const QString& home)
{
    QStringList given;
    for (const Option& option : options) {
        const auto found = lookup.given(option.name);
        if (!found)
            continue;
        given << QStringLiteral("--") + QLatin1String(option.name);
        if (option.value)
            given << (qstrcmp(option.name, "home") == 0 ? home : found->value);
    }
    return given;
}

Settings settingsOf(const Lookup& lookup, const QMap<QString, QString>& environment)
{
    Settings settings;
    settings.isDemo = lookup.given("demo").has_value();
    settings.offersUpdate = lookup.given("demo-update").has_value();
    if (settings.offersUpdate && !settings.isDemo)
        throw UsageError{QStringLiteral("--demo-update needs --demo.")};
    if (const auto language = lookup.find("language"))
        settings.language = language->value;
    if (const auto found = lookup.find("appearance"))
        settings.appearance = appearance(*found);

    const auto home = lookup.given("home");
    settings.home = settings.isDemo ? (home ? folder(*home) : QString()) : homeFolder(lookup, environment);
    const auto address = [&](const char* name) { return settings.isDemo ? lookup.given(name) : lookup.find(name); };
    if (const auto found = address("data-server"))
        settings.dataServer = baseAddress(*found);
    if (const auto found = address("probe"))
        settings.probe = webAddress(*found);
    else if (!settings.isDemo)
        settings.probe = QString::fromLatin1(wellKnownPage);
    settings.options = givenOptions(lookup, settings.home);
    return settings;
}

} // namespace

SettingsOrEnd settingsFrom(
    QStringList arguments, const QMap<QString, QString>& environment, const QMap<QString, QString>& configuration)
{
    const QString reverse = QStringLiteral("-reverse");
    const bool isMirrored = arguments.removeAll(reverse) > 0;
    try {
        QCommandLineParser parser;
        parse(parser, arguments);
        if (parser.isSet(QStringLiteral("help")))
            return EndAtOnce{0, helpText()};
        if (parser.isSet(QStringLiteral("version")))
            return EndAtOnce{0, QStringLiteral("Sonavel ") + toQString(programBundle().shortVersion)};
        Settings settings = settingsOf(Lookup(parser, environment, configuration), environment);
        settings.isMirrored = isMirrored;
        if (isMirrored)
            settings.options << reverse;
        return settings;
    } catch (const UsageError& error) {
        return EndAtOnce{2, QStringLiteral("sonavel: ") + error.text};
    }
}

QMap<QString, QString> readConfiguration()
{
    QMap<QString, QString> configuration;
    const QStringList files =
        QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, QStringLiteral("sonavel/sonavel.conf"));
    for (const QString& path : files) {
        const QSettings file(path, QSettings::IniFormat);
        for (const Option& option : options) {
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
    for (const Option& option : options) {
        if (option.variable)
            environment.insert(QString::fromLatin1(option.variable), qEnvironmentVariable(option.variable));
    }
    return environment;
}

} // namespace sonavel
