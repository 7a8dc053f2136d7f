// Where the values of the launch options come from.
#pragma once

#include <QCommandLineParser>
#include <QMap>
#include <QString>

#include <optional>
#include <span>

namespace sonavel {

/// One option of the command line.
struct LaunchOption {
    const char* name;
    const char* value; ///< what `--help` calls its value; null when it takes none
    const char* variable; ///< of the environment; null for none
    const char* meaning;
};

/// In the order of `--help`.
[[nodiscard]] std::span<const LaunchOption> allLaunchOptions();

/// The values in `sonavel/sonavel.conf` of the user's and the system's configuration folders; the user's wins, key by
/// key.
[[nodiscard]] QMap<QString, QString> readConfiguration();

/// The variables of the environment that concern the player.
[[nodiscard]] QMap<QString, QString> readEnvironment();

/// One value and its source, as error messages name it.
struct LaunchValue {
    QString value;
    QString source;
};

/// Finds values in the order of their sources. Borrows these.
struct LaunchValues {
    /// The value on the command line alone. An option that is given empty is a value.
    [[nodiscard]] std::optional<LaunchValue> given(const char* name) const;
    /// The value of a variable of the environment. An empty one is none.
    [[nodiscard]] std::optional<LaunchValue> variable(const char* name) const;
    /// The value from the first source that has one.
    [[nodiscard]] std::optional<LaunchValue> find(const char* name) const;

    const QCommandLineParser& parser;
    const QMap<QString, QString>& environment;
    const QMap<QString, QString>& configuration;
};

} // namespace sonavel
