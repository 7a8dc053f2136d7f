#include "server/DataServer.h"

#include "model/KVStationWebRadio.h"
#include "model/StationListText.h"
#include "server/DefaultVersion.h"
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

} // namespace

struct DataServer::Implementation {
    explicit Implementation(const DataServerSettings& settings)
        : burstSeconds(settings.burstSeconds)
        , files(settings.folder)
    {
    }

    void configure();
    void publish(const DataServerSettings& settings);
    [[nodiscard]] std::string baseAddressFor(const httplib::Request& request) const;
    void respond(const httplib::Request& request, httplib::Response& response) const;
    void stream(const DemoStation& station, const httplib::Request& request, httplib::Response& response);

    const double burstSeconds;
    PublishedFiles files;
    std::unique_ptr<VersionFile> versionFile;
    std::string baseAddress;
    std::atomic<int> listeners = 0;
    HttpServer server; // last: its threads use the other members
};

void DataServer::Implementation::configure()
{
    server.Get("/", [](const httplib::Request&, httplib::Response& response) {
        response.set_content(page, "text/html; charset=utf-8");
    });
    server.Get(R"(/app_data_files/testget\.php)",
        [this](const httplib::Request& request, httplib::Response& response) { respond(request, response); });
    server.Post(R"(/app_data_files/testpost\.php)",
        [this](const httplib::Request& request, httplib::Response& response) { respond(request, response); });
}

void DataServer::Implementation::publish(const DataServerSettings& settings)
{
    files.addBuiltIn(
        versionName, [this](const std::string& address) { return versionResponse(versionFile->current(), address); });
    if (settings.content == DataServerSettings::Content::Starter) {
        files.addBuiltIn(listName, [list = encryptedList(starterRecords())](const std::string&) { return list; });
        return;
    }
    files.addBuiltIn(listName, [](const std::string& address) { return encryptedList(demoRecords(address)); });
    for (const DemoStation& station : demoStations())
        server.Get(station.path, [this, &station](const httplib::Request& request, httplib::Response& response) {
            stream(station, request, response);
        });
}

/// By the host that the client named: which of this machine's names and addresses reaches it differs by client.
std::string DataServer::Implementation::baseAddressFor(const httplib::Request& request) const
{
    const std::string host = request.get_header_value("Host");
    return isHostAndPort(host) ? "http://" + host + '/' : baseAddress;
}

void DataServer::Implementation::respond(const httplib::Request& request, httplib::Response& response) const
{
    if (const auto content = files.contentOf(request.get_param_value("file"), baseAddressFor(request))) {
        response.set_content(*content, "text/plain");
        return;
    }
    response.status = 404;
    response.set_content("Nothing is published under this name.\n", "text/plain");
}

void DataServer::Implementation::stream(
    const DemoStation& station, const httplib::Request& request, httplib::Response& response)
{
    const std::shared_ptr<void> slot(nullptr, [this](void*) { --listeners; });
    if (++listeners > maxListeners) {
        response.status = 503;
        response.set_content("There is no room for another listener.\n", "text/plain");
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
            static_cast<double>(music->musicSent()) / IcyStream::bytesPerSecond - burstSeconds);
        if (!server.waitUntil(start + std::chrono::duration_cast<std::chrono::steady_clock::duration>(due)))
            return false;
        const std::string piece = music->next(maxPieceSize);
        return sink.write(piece.data(), piece.size());
    });
}

tl::expected<std::unique_ptr<DataServer>, std::string> DataServer::create(const DataServerSettings& settings)
{
    auto versionFile = VersionFile::create(settings.folder, defaultVersion(settings), settings.report);
    if (!versionFile)
        return tl::unexpected(std::move(versionFile.error()));
    auto implementation = std::make_unique<Implementation>(settings);
    implementation->versionFile = *std::move(versionFile);
    implementation->configure();
    const auto port = implementation->server.listenAt(settings.address, settings.port);
    if (!port)
        return tl::unexpected(port.error());
    implementation->baseAddress = "http://" + hostOf(settings.address) + ':' + std::to_string(*port) + '/';
    implementation->publish(settings);
    implementation->server.start();
    return std::unique_ptr<DataServer>(new DataServer(std::move(implementation)));
}

DataServer::DataServer(std::unique_ptr<Implementation> implementation)
    : implementation_(std::move(implementation))
{
}

DataServer::~DataServer() = default;

Text DataServer::baseAddress() const
{
    return {implementation_->baseAddress};
}

} // namespace sonavel
