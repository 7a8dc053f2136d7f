#include "server/DataServer.h"

#include "model/KVStationWebRadio.h"
#include "model/StationListText.h"
#include "server/ConnectionThreads.h"
#include "server/IcyStream.h"
#include "server/PublishedFiles.h"
#include "server/Stations.h"
#include "storage/AESCrypt.h"
#include "storage/Passphrase.h"

#include <httplib.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace sonavel {

namespace {

constexpr char listName[] = "20161001000000_lr.rdb";
constexpr char versionName[] = "sonavel.ini";
constexpr std::size_t mostConnections = 64;
constexpr std::size_t largestForm = 64 * 1024;
constexpr std::size_t largestPiece = 4096;

constexpr char page[] = "<!DOCTYPE html>\n<html lang=\"en\">\n<title>Sonavel data server</title>\n"
                        "<p>This server publishes station lists for Sonavel.</p>\n</html>\n";

/// Lets the server's library use threads that are made when they are needed.
class TaskQueue : public httplib::TaskQueue {
public:
    void enqueue(std::function<void()> task) override { threads_.add(std::move(task)); }
    void shutdown() override { threads_.finish(); }

private:
    ConnectionThreads threads_{mostConnections};
};

std::string encryptedList(const StationRecords& stations)
{
    const Text text = listTextFromRecords(stations, Heading::FieldNames);
    return AES256EncryptWithKey(text, stationDatabasePassphrase).string();
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

/// Eight values by their position; the words before them are for people.
std::string versionAnswer(const DataServerSettings& settings, const std::string& baseAddress)
{
    return "name;Sonavel\rversion;" + settings.version + "\rbuild;" + settings.build + "\rapplication;" + baseAddress
        + "\rpage;" + baseAddress + "\rnotes;\rreleased;" + starterStationsChanged + "\rlist changed;"
        + starterStationsChanged + "\r";
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
    void answer(const httplib::Request& request, httplib::Response& response) const;
    void stream(const DemoStation& station, const httplib::Request& request, httplib::Response& response);
    void wait(std::chrono::duration<double> time);
    void stop();

    const double burstSeconds;
    PublishedFiles files;
    httplib::Server server;
    std::string baseAddress;
    std::thread listening;

    std::mutex mutex;
    std::condition_variable stopping;
    bool isStopping = false;
};

void DataServer::Implementation::configure()
{
    server.new_task_queue = [] { return new TaskQueue; };
    server.set_payload_max_length(largestForm);
    server.set_keep_alive_max_count(20);
    server.set_keep_alive_timeout(1);
    server.set_read_timeout(5);
    server.set_write_timeout(10);
    server.Get("/", [](const httplib::Request&, httplib::Response& response) {
        response.set_content(page, "text/html; charset=utf-8");
    });
    server.Get("/app_data_files/testget.php",
        [this](const httplib::Request& request, httplib::Response& response) { answer(request, response); });
    server.Post("/app_data_files/testpost.php",
        [this](const httplib::Request& request, httplib::Response& response) { answer(request, response); });
}

void DataServer::Implementation::publish(const DataServerSettings& settings)
{
    const bool isDemo = settings.content == DataServerSettings::Content::Demo;
    files.addBuiltIn(listName, encryptedList(isDemo ? demoRecords(baseAddress) : starterRecords()));
    files.addBuiltIn(versionName, versionAnswer(settings, baseAddress));
    if (!isDemo)
        return;
    for (const DemoStation& station : demoStations())
        server.Get(station.path, [this, &station](const httplib::Request& request, httplib::Response& response) {
            stream(station, request, response);
        });
}

void DataServer::Implementation::answer(const httplib::Request& request, httplib::Response& response) const
{
    if (auto content = files.contentOf(request.get_param_value("file"))) {
        response.set_content(std::move(*content), "text/plain");
        return;
    }
    response.status = 404;
    response.set_content("Nothing is published under this name.\n", "text/plain");
}

void DataServer::Implementation::stream(
    const DemoStation& station, const httplib::Request& request, httplib::Response& response)
{
    const bool wantsTitles = request.get_header_value("Icy-MetaData") == "1";
    response.set_header("icy-name", station.name);
    response.set_header("icy-br", "128");
    response.set_header("Cache-Control", "no-cache");
    if (wantsTitles)
        response.set_header("icy-metaint", std::to_string(IcyStream::titleInterval));

    const auto titles = wantsTitles ? IcyStream::Titles::Interleaved : IcyStream::Titles::None;
    const auto beginning = std::chrono::steady_clock::now();
    response.set_content_provider("audio/mpeg",
        [this, beginning, music = std::make_shared<IcyStream>(station, titles)](std::size_t, httplib::DataSink& sink) {
            const double due = static_cast<double>(music->musicSent()) / IcyStream::bytesPerSecond - burstSeconds;
            wait(std::chrono::duration<double>(due) - (std::chrono::steady_clock::now() - beginning));
            const std::string piece = music->next(largestPiece);
            return !isStopping && sink.write(piece.data(), piece.size());
        });
}

void DataServer::Implementation::wait(std::chrono::duration<double> time)
{
    std::unique_lock lock(mutex);
    if (time.count() > 0)
        stopping.wait_for(lock, time, [this] { return isStopping; });
}

void DataServer::Implementation::stop()
{
    {
        const std::lock_guard lock(mutex);
        isStopping = true;
    }
    stopping.notify_all();
    while (listening.joinable() && !server.is_running() && server.is_valid())
        std::this_thread::yield();
    server.stop();
    if (listening.joinable())
        listening.join();
}

std::unique_ptr<DataServer> DataServer::create(const DataServerSettings& settings, std::string& whyNot)
{
    auto implementation = std::make_unique<Implementation>(settings);
    implementation->configure();
    httplib::Server& server = implementation->server;
    const int port = settings.port == 0                        ? server.bind_to_any_port(settings.address)
        : server.bind_to_port(settings.address, settings.port) ? settings.port
                                                               : -1;
    if (port <= 0) {
        whyNot = "The server cannot listen at " + settings.address + ", port " + std::to_string(settings.port) + ".";
        return nullptr;
    }
    const bool isNumericV6 = settings.address.find(':') != std::string::npos;
    const std::string host = isNumericV6 ? '[' + settings.address + ']' : settings.address;
    implementation->baseAddress = "http://" + host + ':' + std::to_string(port) + '/';
    implementation->publish(settings);
    implementation->listening = std::thread([&server] { server.listen_after_bind(); });
    return std::unique_ptr<DataServer>(new DataServer(std::move(implementation)));
}

DataServer::DataServer(std::unique_ptr<Implementation> implementation)
    : implementation_(std::move(implementation))
{
}

DataServer::~DataServer()
{
    implementation_->stop();
}

Text DataServer::baseAddress() const
{
    return {implementation_->baseAddress};
}

} // namespace sonavel
