// Temporary home directory and data server, where the options name none.
#pragma once

#include "qt/LaunchOptions.h"
#include "server/DataServer.h"

#include <QTemporaryDir>

#include <memory>

namespace sonavel {

struct LaunchResources {
    std::unique_ptr<QTemporaryDir> temporaryHome; ///< null when the home directory is the user's
    std::unique_ptr<DataServer> dataServer; ///< null when other servers are asked
};

/// Creates what is missing and fills in the options. The error is a reason in one line.
[[nodiscard]] tl::expected<LaunchResources, QString> provideResources(LaunchOptions& options);

} // namespace sonavel
