#include "qt/LaunchResources.h"

#include "qt/kit/TextConversion.h"

namespace sonavel {

namespace {

DataServerSettings serverSettings(const LaunchOptions& options)
{
    DataServerSettings server;
    server.content = options.isDemo ? DataServerSettings::Content::Demo : DataServerSettings::Content::Starter;
    if (options.offersUpdate)
        server.offer = DataServerSettings::Offer::NewerVersion;
    return server;
}

} // namespace

tl::expected<LaunchResources, QString> provideResources(LaunchOptions& options)
{
    LaunchResources resources;
    if (options.home.isEmpty()) {
        resources.temporaryHome = std::make_unique<QTemporaryDir>();
        if (!resources.temporaryHome->isValid())
            return tl::unexpected(resources.temporaryHome->errorString());
        options.home = resources.temporaryHome->path();
    }
    if (options.dataServer.isEmpty() || options.probe.isEmpty()) {
        auto server = DataServer::create(serverSettings(options));
        if (!server)
            return tl::unexpected(QString::fromStdString(server.error()));
        resources.dataServer = *std::move(server);
        const QString address = toQString(resources.dataServer->baseAddress());
        for (QString* unset : {&options.dataServer, &options.probe}) {
            if (unset->isEmpty())
                *unset = address;
        }
    }
    return resources;
}

} // namespace sonavel
