// The data server: publishes station lists and versions, and streams the demo stations.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"
#include "platform/Bundle.h"

#include <tl/expected.hpp>

#include <functional>
#include <memory>
#include <string>

namespace sonavel {

struct DataServerSettings {
    enum class Content {
        /// A list of well-known public stations.
        Starter,
        /// Three stations that the server streams itself.
        Demo,
    };

    enum class Offer {
        /// The version below.
        ThisVersion,
        /// One that is newer, with notes, so that its user sees how that is reported.
        NewerVersion,
    };

    Content content = Content::Starter;
    /// What the default version is.
    Offer offer = Offer::ThisVersion;
    /// The folder whose files are published; empty for the built-in responses alone.
    std::string folder;
    std::string address = "127.0.0.1";
    /// 0 takes a free one.
    int port = 0;
    /// The short version and the build that it publishes as the newest.
    std::string version = programBundle().shortVersion.string();
    std::string build = programBundle().version.string();
    /// Called with one sentence for each problem while it serves; on any thread.
    std::function<void(const std::string&)> report = [](const std::string&) {};
    /// How many seconds of a demo stream are sent at once; the rest follows at the speed at which it is played.
    double burstSeconds = 4.0;
};

/// Serves on threads of its own from `create` until it is destroyed, which ends running streams and requests at once.
///
/// `GET /` returns a small page. `GET /app_data_files/testget.php?file=NAME` and `POST /app_data_files/testpost.php`
/// with the form field `file=NAME` return what is published under that name, or status 404. The built-in names are
/// "20161001000000_lr.rdb", the encrypted station list, and "sonavel.ini", the newest version: what the folder's file
/// "version.txt" says, or else that of the program itself.
class DataServer : private NonCopyable {
public:
    /// Fails when it cannot listen there, or cannot publish the folder's "version.txt"; the error is one sentence for
    /// the user.
    [[nodiscard]] static tl::expected<std::unique_ptr<DataServer>, std::string> create(
        const DataServerSettings& settings);

    virtual ~DataServer() = default;

    /// Where it is reached on this machine, such as "http://127.0.0.1:8080/". In responses it is replaced by the host
    /// that the client named, if any.
    [[nodiscard]] virtual Text baseAddress() const = 0;
};

} // namespace sonavel
