// What the player is started with: options, environment and configuration file.
#pragma once

#include "qt/kit/Palettes.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <tl/expected.hpp>

#include <optional>

namespace sonavel {

struct LaunchOptions {
    /// An existing folder, absolute, without a trailing "/". Empty for a temporary one.
    QString home;
    /// http or https address ending in "/". Empty for a server of the player's own.
    QString dataServer;
    /// http or https address. Empty for the player's own server.
    QString probe;
    /// Everything embedded: an own data server with streams of its own.
    bool isDemo = false;
    /// The embedded server offers a newer version.
    bool offersUpdate = false;
    /// Language code such as "de"; empty for the desktop's.
    QString language;
    /// Absent for the desktop's.
    std::optional<Appearance> appearance;
    /// The windows are laid out from right to left.
    bool isMirrored = false;
    /// The options that were given, as they start the player the same way from any folder.
    QStringList arguments;
};

/// Why the program exits at once: with status 0 after `--help` and `--version`, with 2 after a usage error.
struct EarlyExit {
    int status = 0;
    /// To print, without a line end; on the standard error output when the status is not 0.
    QString text;
};

/// Options win over the environment, which wins over the configuration file, which wins over the built-in value; with
/// `--demo` the addresses and the home folder come from the options or are embedded. `-reverse` mirrors the windows, as
/// in every program of the toolkit. `arguments` are without the name of the program; `configuration` maps the long
/// names of options to values.
[[nodiscard]] tl::expected<LaunchOptions, EarlyExit> launchOptionsFrom(
    QStringList arguments, const QMap<QString, QString>& environment, const QMap<QString, QString>& configuration);

} // namespace sonavel
