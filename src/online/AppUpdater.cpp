#include "online/AppUpdater.h"

#include "online/WebRequests.h"
#include "platform/HttpClient.h"
#include "platform/LocalizedStrings.h"
#include "platform/WebBrowser.h"

#include <string>
#include <utility>

namespace sonavel {

namespace {

constexpr std::string_view versionResource = "app_data_files/testpost.php";

HttpRequest requestTo(const Text& dataServer)
{
    HttpRequest request;
    request.method = HttpRequest::Method::Post;
    request.address = percentEscaped(dataServer.string().append(versionResource));
    request.headers.emplace_back("Content-Type", "application/x-www-form-urlencoded");
    request.body = "file=sonavel.ini";
    return request;
}

} // namespace

std::shared_ptr<AppUpdater> AppUpdater::create(const UpdaterPorts& ports, Versions& versions)
{
    std::shared_ptr<AppUpdater> updater(new AppUpdater(ports, versions));
    versions.application = updater->returnVersionApp();
    versions.server = updater->returnVersionUpdate();
    updater->interface_ = ports.interfaces.loadAppUpdater(
        {updater->windowUpdater, updater->textFieldLabelUpdateNameApp, updater->textFieldLabelUpdateVersionNote,
            updater->textViewRelaseNote, updater->buttonUpdate, updater->buttonRemind});
    return updater;
}

VersionRecord AppUpdater::returnVersionUpdate()
{
    const auto body = ports_.httpClient.sendSynchronousRequest(requestTo(ports_.dataServer));
    const auto record = body ? serverVersionRecord(*body) : std::nullopt;
    hasUsableResponse_ = record.has_value();
    VersionRecord found = record.value_or(VersionRecord());
    updateApp = momentFromInternationalForm(found.updateApp);
    updateData = momentFromInternationalForm(found.updateData);
    return found;
}

bool AppUpdater::checkUpdate()
{
    if (!hasUsableResponse_)
        return false;
    versions_.isUpdateAvailable =
        versions_.isUpdateAvailable || isAnyNumberHigher(versions_.server, versions_.application);
    if (versions_.isUpdateAvailable)
        showWindow();
    return versions_.isUpdateAvailable;
}

void AppUpdater::showWindow()
{
    const std::string name = versions_.application.AppName.string();
    const auto localized = [this](std::string_view key) { return ports_.localizedStrings.localizedStringForKey(key); };
    textFieldLabelUpdateNameApp.setStringValue(name + " " + localized("UPD_NEW_UPDATE_AVIABLE").string());
    textFieldLabelUpdateVersionNote.setStringValue(name + " " + retrunVersionUpdate().string() + " "
        + localized("UPD_INFO").string() + " " + retrunVersionApp().string());
    textViewRelaseNote.setStringValue(releaseNotes(versions_.server));
    windowUpdater.setIsVisible(true);
}

void AppUpdater::buttnUpdate()
{
    const Text page = usableWebAddress(versions_.server.LinkPage);
    if (!page.isAbsent())
        ports_.webBrowser.openAddress(page);
    windowUpdater.close();
}

} // namespace sonavel
