// One look for a newer version, and the window that announces it.
#pragma once

#include "base/Moment.h"
#include "base/NonCopyable.h"
#include "base/Text.h"
#include "online/VersionRecord.h"
#include "platform/Bundle.h"
#include "platform/Interfaces.h"
#include "ui/Button.h"
#include "ui/TextField.h"
#include "ui/Window.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

namespace sonavel {

class HttpClient;
class LocalizedStrings;
class WebBrowser;

/// What all checks of a run share. Each check replaces both records; the mark is never taken back.
struct Versions {
    VersionRecord application;
    VersionRecord server;
    bool isUpdateAvailable = false;
};

/// Borrowed by the checker, except the address and the bundle.
struct UpdaterPorts {
    HttpClient& httpClient;
    const LocalizedStrings& localizedStrings;
    Interfaces& interfaces;
    WebBrowser& webBrowser;
    Bundle bundle;
    /// The data server's base address; ends in "/".
    Text dataServer;
};

/// Main thread. Its window goes with it.
class AppUpdater : private NonCopyable {
public:
    /// Asks the server, which blocks, replaces both records, and builds the window, hidden.
    [[nodiscard]] static std::shared_ptr<AppUpdater> create(const UpdaterPorts& ports, Versions& versions);

    Window windowUpdater;
    TextField textFieldLabelUpdateNameApp;
    TextField textFieldLabelUpdateVersionNote;
    TextField textViewRelaseNote;
    Button buttonUpdate;
    Button buttonRemind;

    /// When the newest version came out, and when the server's station list last changed; absent where the server does
    /// not say so in the international form.
    std::optional<Moment> updateApp;
    std::optional<Moment> updateData;

    /// Meant for a download in progress; there is none.
    std::shared_ptr<const std::string> downloadResponse;
    std::int64_t bytesReceived = 0;

    [[nodiscard]] VersionRecord returnVersionApp() const { return applicationVersionRecord(ports_.bundle); }
    /// Asks the server and sets both dates; without a usable response they are absent, and the record is that of no
    /// version.
    [[nodiscard]] VersionRecord returnVersionUpdate();

    /// Whether there is a newer version, or was at an earlier check of this run; then the window is filled and shown.
    /// NO without a usable response. Sends no request.
    bool checkUpdate();
    /// Whether the server's response could be parsed.
    [[nodiscard]] bool hasUsableResponse() const { return hasUsableResponse_; }

    [[nodiscard]] Text retrunVersionApp() const { return versionText(versions_.application); }
    [[nodiscard]] Text retrunVersionUpdate() const { return versionText(versions_.server); }

    /// Opens the page of the newest version, if its address is a web address, and closes the window.
    void buttnUpdate();
    /// Closes the window.
    void buttnRemind() { windowUpdater.close(); }

private:
    AppUpdater(UpdaterPorts ports, Versions& versions)
        : ports_(std::move(ports))
        , versions_(versions)
    {
    }

    void showWindow();

    UpdaterPorts ports_;
    Versions& versions_;
    bool hasUsableResponse_ = false;
    std::shared_ptr<void> interface_; // goes before the controls that it connects
};

} // namespace sonavel
