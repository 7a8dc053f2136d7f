#include "server/DataServer.h"

#include "base/Numbers.h"
#include "model/KVStationWebRadio.h"
#include "model/StationListText.h"
#include "server/HttpServer.h"
#include "server/IcyStream.h"
#include "server/PublishedFiles.h"
#include "server/Stations.h"
#include "server/VersionFile.h"
#include "storage/StationListCodec.h"

#include <atomic>
#include <chrono>
#include <string_view>
#include <utility>

namespace sonavel {

namespace {

constexpr const char* listName = "20161001000000_lr.rdb";
constexpr const char* versionName = "sonavel.ini";
constexpr std::size_t maxPieceSize = 4096;
/// Listeners stay for hours; the other half of the connections is for short requests.
constexpr int maxListeners = HttpServer::maxConnections / 2;

constexpr const char* page = "<!DOCTYPE html>\n<html lang=\"en\">\n<title>Sonavel data server</title>\n"
                             "<p>This server publishes station lists for Sonavel.</p>\n</html>\n";

std::string encryptedList(const StationRecords& stations)
{
    return encodeStationList(listTextFromRecords(stations, Heading::FieldNames)).string();
}

StationRecords starterRecords()
{
    StationRecords records;
    for (const PublicStation& station : starterStations())
        records.push_back(std::make_shared<KVStationWebRadio>(records.size() + 1, station.name, station.address));
    return records;
}

StationRecords demoRecords(const std::string& baseAddress)
{
    StationRecords records;
    for (const DemoStation& station : demoStations())
        records.push_back(std::make_shared<KVStationWebRadio>(
            records.size() + 1, station.name, baseAddress + std::string_view(station.path).substr(1).data()));
    return records;
}

std::string numberAfter(const std::string& number)
{
    return decimalText(integerValue(number) + 1).string();
}

/// The version of the settings, or the one that they offer in its place.
PublishedVersion defaultVersion(const DataServerSettings& settings)
{
    PublishedVersion version;
    version.version = settings.version;
    version.build = settings.build;
    version.released = starterStationsChanged;
    version.listChanged = starterStationsChanged;
    if (settings.offer == DataServerSettings::Offer::NewerVersion) {
        version.version = numberAfter(settings.version) + ".0.0";
        version.build = numberAfter(settings.build);
        version.notes = {"This version exists in the demo alone.",
            "The notes of a release stand here, a line for each.",
            "Download opens the page of the version in the web browser."};
    }
    return version;
}

/// The host in a URL for that address; for a wildcard address, the loopback address.
std::string hostOf(const std::string& address)
{
    if (address == "0.0.0.0")
        return "127.0.0.1";
    if (address == "::")
        return "[::1]";
    return address.find(':') == std::string::npos ? address : '[' + address + ']';
}

/// Whether a host sent by a client is safe to insert into an address in a list.
bool isHostAndPort(std::string_view name)
{
    constexpr std::size_t maxNameLength = 255;
    constexpr std::string_view usual = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-._:[]";
    return !name.empty() && name.size() <= maxNameLength && name.find_first_not_of(usual) == std::string_view::npos;
}

class HttpDataServer final : public DataServer {
public:
    HttpDataServer(const DataServerSettings& settings, std::unique_ptr<VersionFile> versionFile);

    /// Listens and publishes. An error is one sentence for the user.
    [[nodiscard]] tl::expected<void, std::string> start(const DataServerSettings& settings);

    [[nodiscard]] Text baseAddress() const override { return baseAddress_; }

private:
    void publish(DataServerSettings::Content content);
    [[nodiscard]] std::string baseAddressFor(const httplib::Request& request) const;
    void respond(const httplib::Request& request, httplib::Response& response) const;
    void stream(const DemoStation& station, const httplib::Request& request, httplib::Response& response);

    const double burstSeconds_;
    PublishedFiles files_;
    std::unique_ptr<VersionFile> versionFile_;
    std::string baseAddress_;
    std::atomic<int> listeners_ = 0;
    HttpServer server_; // last: its threads use the other members
};

HttpDataServer::HttpDataServer(const DataServerSettings& settings, std::unique_ptr<VersionFile> versionFile)
    : burstSeconds_(settings.burstSeconds)
    , files_(settings.folder)
    , versionFile_(std::move(versionFile))
{
    server_.Get("/", [](const httplib::Request&, httplib::Response& response) {
        response.set_content(page, "text/html; charset=utf-8");
    });
    const auto handler = [this](const httplib::Request& request, httplib::Response& response) {
        respond(request, response);
    };
    server_.Get(R"(/app_data_files/testget\.php)", handler);
    server_.Post(R"(/app_data_files/testpost\.php)", handler);
}

tl::expected<void, std::string> HttpDataServer::start(const DataServerSettings& settings)
{
    return server_.listenAt(settings.address, settings.port).map([&](int port) {
        baseAddress_ = "http://" + hostOf(settings.address) + ':' + std::to_string(port) + '/';
        publish(settings.content);
        server_.start();
    });
}

void HttpDataServer::publish(DataServerSettings::Content content)
{
    files_.addBuiltIn(
        versionName, [this](const std::string& address) { return versionResponse(versionFile_->current(), address); });
    if (content == DataServerSettings::Content::Starter) {
        files_.addBuiltIn(listName, [list = encryptedList(starterRecords())](const std::string&) { return list; });
        return;
    }
    files_.addBuiltIn(listName, [](const std::string& address) { return encryptedList(demoRecords(address)); });
    for (const DemoStation& station : demoStations())
        server_.Get(station.path, [this, &station](const httplib::Request& request, httplib::Response& response) {
            stream(station, request, response);
        });
}

/// By the host that the client named: which of this machine's names and addresses reaches it differs by client.
std::string HttpDataServer::baseAddressFor(const httplib::Request& request) const
{
    const std::string host = request.get_header_value("Host");
    return isHostAndPort(host) ? "http://" + host + '/' : baseAddress_;
}

void HttpDataServer::respond(const httplib::Request& request, httplib::Response& response) const
{
    if (const auto content = files_.contentOf(request.get_param_value("file"), baseAddressFor(request))) {
        response.set_content(*content, "text/plain");
        return;
    }
    response.status = 404;
    response.set_content("Nothing is published under this name.\n", "text/plain");
}

void HttpDataServer::stream(const DemoStation& station, const httplib::Request& request, httplib::Response& response)
{
    const std::shared_ptr<void> slot(nullptr, [this](void*) { --listeners_; });
    if (++listeners_ > maxListeners) {
        response.status = 503;
        response.set_content("No connection is free for another listener.\n", "text/plain");
        return;
    }
    const bool wantsTitles = request.get_header_value("Icy-MetaData") == "1";
    response.set_header("icy-name", station.name);
    response.set_header("icy-br", "128");
    response.set_header("Cache-Control", "no-cache");
    if (wantsTitles)
        response.set_header("icy-metaint", std::to_string(IcyStream::titleInterval));

    const auto titles = wantsTitles ? IcyStream::Titles::Interleaved : IcyStream::Titles::None;
    const auto music = std::make_shared<IcyStream>(station, titles);
    const auto start = std::chrono::steady_clock::now();
    response.set_content_provider("audio/mpeg", [this, slot, music, start](std::size_t, httplib::DataSink& sink) {
        const std::chrono::duration<double> due(
            static_cast<double>(music->musicSent()) / IcyStream::bytesPerSecond - burstSeconds_);
        if (!server_.waitUntil(start + std::chrono::duration_cast<std::chrono::steady_clock::duration>(due)))
            return false;
        const std::string piece = music->next(maxPieceSize);
        return sink.write(piece.data(), piece.size());
    });
}

} // namespace

tl::expected<std::unique_ptr<DataServer>, std::string> DataServer::create(const DataServerSettings& settings)
{
    auto versionFile = VersionFile::create(settings.folder, defaultVersion(settings), settings.report);
    if (!versionFile)
        return tl::unexpected(std::move(versionFile.error()));
    auto server = std::make_unique<HttpDataServer>(settings, *std::move(versionFile));
    return server->start(settings).map([&]() -> std::unique_ptr<DataServer> { return std::move(server); });
}

} // namespace sonavel
