#include "qt/LaunchOptions.h"

#include "model/StreamAddress.h"
#include "platform/Bundle.h"
#include "qt/LaunchValues.h"
#include "qt/kit/TextConversion.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace sonavel {

namespace {

constexpr const char* wellKnownPage = "https://www.debian.org/";

/// A value, or what is wrong with it in one line.
template <class Value> using Checked = tl::expected<Value, QString>;

/// A value that may be an address, as error messages show it.
QString shown(const QString& value)
{
    return toQString(withoutUserInformation(toText(value)));
}

QString helpText()
{
    QString text = QStringLiteral("Usage: sonavel [options]\nPlays internet radio.\n");
    for (const LaunchOption& option : allLaunchOptions()) {
        QString left = QStringLiteral("  --%1 %2").arg(QLatin1String(option.name), QLatin1String(option.value));
        text += u'\n' + left.leftJustified(26) + QLatin1String(option.meaning);
        if (option.variable)
            text += QStringLiteral(" ($%1)").arg(QLatin1String(option.variable));
    }
    return text;
}

Checked<void> parse(QCommandLineParser& parser, const QStringList& arguments)
{
    for (const LaunchOption& option : allLaunchOptions())
        parser.addOption(
            {QString::fromLatin1(option.name), QString::fromLatin1(option.meaning), QString::fromLatin1(option.value)});
    // The parser skips the name of the program.
    if (!parser.parse(QStringList{QString()} + arguments))
        return tl::unexpected(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return tl::unexpected(
            QStringLiteral("Unexpected argument \"%1\".").arg(shown(parser.positionalArguments().constFirst())));
    return {};
}

Checked<QString> folder(const LaunchValue& found)
{
    const QFileInfo file(found.value);
    if (found.value.isEmpty() || !file.isDir())
        return tl::unexpected(QStringLiteral("%1: \"%2\" is not a directory.").arg(found.source, found.value));
    return QDir::cleanPath(file.absoluteFilePath());
}

Checked<QString> webAddress(const LaunchValue& found)
{
    const QUrl url(found.value, QUrl::StrictMode);
    const bool isWeb = url.scheme() == u"http" || url.scheme() == u"https";
    if (!url.isValid() || !isWeb || url.host().isEmpty())
        return tl::unexpected(
            QStringLiteral("%1: \"%2\" is not an http or https address.").arg(found.source, shown(found.value)));
    return QString::fromLatin1(url.toEncoded());
}

Checked<QString> baseAddress(const LaunchValue& found)
{
    return webAddress(found).map(
        [](const QString& address) { return address.endsWith(u'/') ? address : address + u'/'; });
}

Checked<Appearance> appearance(const LaunchValue& found)
{
    if (const auto appearance = appearanceNamed(found.value))
        return *appearance;
    return tl::unexpected(QStringLiteral("%1: \"%2\" is none of %3.")
                              .arg(found.source, found.value, appearanceNames().join(QStringLiteral(", "))));
}

/// Leaves the option as it is when no value was found.
template <class Option, class Value>
Checked<void> assign(
    Option& option, const std::optional<LaunchValue>& found, Checked<Value> (*check)(const LaunchValue&))
{
    if (!found)
        return {};
    return check(*found).map([&](const Value& value) { option = value; });
}

QStringList givenArguments(const LaunchValues& values, const QString& home)
{
    QStringList arguments;
    for (const LaunchOption& option : allLaunchOptions()) {
        const auto found = values.given(option.name);
        if (!found)
            continue;
        arguments << QStringLiteral("--") + QLatin1String(option.name);
        if (option.value)
            arguments << (qstrcmp(option.name, "home") == 0 ? home : found->value);
    }
    return arguments;
}

Checked<LaunchOptions> optionsOf(const LaunchValues& values)
{
    LaunchOptions options;
    options.isDemo = values.given("demo").has_value();
    options.offersUpdate = values.given("demo-update").has_value();
    if (options.offersUpdate && !options.isDemo)
        return tl::unexpected(QStringLiteral("--demo-update needs --demo."));
    const auto notInDemo = [&](const char* name) { return options.isDemo ? values.given(name) : values.find(name); };
    auto home = notInDemo("home");
    if (!home && !options.isDemo)
        home = values.variable("HOME");
    if (!home && !options.isDemo)
        return tl::unexpected(QStringLiteral("There is no home directory: set HOME or give --home."));
    if (!options.isDemo)
        options.probe = QString::fromLatin1(wellKnownPage);

    for (const auto& assigned : {assign(options.appearance, values.find("appearance"), appearance),
             assign(options.home, home, folder), assign(options.dataServer, notInDemo("data-server"), baseAddress),
             assign(options.probe, notInDemo("probe"), webAddress)})
        if (!assigned)
            return tl::unexpected(assigned.error());
    options.language = values.find("language").value_or(LaunchValue()).value;
    options.arguments = givenArguments(values, options.home);
    return options;
}

EarlyExit usageError(const QString& text)
{
    return {2, QStringLiteral("sonavel: ") + text};
}

} // namespace

tl::expected<LaunchOptions, EarlyExit> launchOptionsFrom(
    QStringList arguments, const QMap<QString, QString>& environment, const QMap<QString, QString>& configuration)
{
    const QString reverse = QStringLiteral("-reverse");
    const bool isMirrored = arguments.removeAll(reverse) > 0;
    QCommandLineParser parser;
    if (const auto parsed = parse(parser, arguments); !parsed)
        return tl::unexpected(usageError(parsed.error()));
    if (parser.isSet(QStringLiteral("help")))
        return tl::unexpected(EarlyExit{0, helpText()});
    if (parser.isSet(QStringLiteral("version")))
        return tl::unexpected(EarlyExit{0, QStringLiteral("Sonavel ") + toQString(programBundle().shortVersion)});
    auto options = optionsOf({parser, environment, configuration}).map_error(usageError);
    if (options && isMirrored) {
        options->isMirrored = true;
        options->arguments << reverse;
    }
    return options;
}

} // namespace sonavel
