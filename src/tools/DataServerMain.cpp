// sonavel-data-server: serves station lists, versions and demo streams until a signal ends it.

#include "server/DataServer.h"

#include <getopt.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string_view>

namespace {

using namespace sonavel;

constexpr int usageError = 2;

constexpr const char* help = "Usage: sonavel-data-server [OPTION]...\n"
                             "Publishes station lists and versions for Sonavel.\n\n"
                             "  --directory DIR    publish the files of this folder; what it lacks is built in\n"
                             "  --port N           listen at this port; 0, as without this option, takes a free one\n"
                             "  --address ADDRESS  listen at this address (127.0.0.1)\n"
                             "  --demo             offer three demo stations, and stream them\n"
                             "  --demo-update      with --demo: offer a newer version, which does not exist\n"
                             "  --version          print the version\n"
                             "  --help             print this\n\n"
                             "Prints \"listening on http://HOST:PORT/\", which reaches it on this machine, once it\n"
                             "does. SIGTERM and SIGINT end it.\n";

/// In one write, so that messages of several threads do not mix.
void printError(const std::string& what)
{
    std::cerr << "sonavel-data-server: " + what + '\n';
}

[[noreturn]] void refuse(const std::string& why)
{
    printError(why);
    std::exit(usageError);
}

int portFrom(std::string_view text)
{
    int port = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    if (error != std::errc() || end != text.data() + text.size() || port < 0 || port > 65535)
        refuse("--port takes a number from 0 to 65535");
    return port;
}

std::string folderFrom(const char* path)
{
    struct stat status { };
    if (stat(path, &status) != 0 || !S_ISDIR(status.st_mode))
        refuse(std::string("there is no folder ") + path);
    return path;
}

DataServerSettings settingsFrom(int argc, char** argv)
{
    DataServerSettings settings;
    settings.report = printError;
    constexpr std::array options{
        option{"directory", required_argument, nullptr, 'd'},
        option{"port", required_argument, nullptr, 'p'},
        option{"address", required_argument, nullptr, 'a'},
        option{"demo", no_argument, nullptr, 'D'},
        option{"demo-update", no_argument, nullptr, 'U'},
        option{"version", no_argument, nullptr, 'V'},
        option{"help", no_argument, nullptr, 'h'},
        option{},
    };
    for (int found = 0; (found = getopt_long(argc, argv, "", options.data(), nullptr)) != -1;) {
        switch (found) {
        case 'd':
            settings.folder = folderFrom(optarg);
            break;
        case 'p':
            settings.port = portFrom(optarg);
            break;
        case 'a':
            settings.address = optarg;
            break;
        case 'D':
            settings.content = DataServerSettings::Content::Demo;
            break;
        case 'U':
            settings.offer = DataServerSettings::Offer::NewerVersion;
            break;
        case 'V':
            std::cout << "sonavel-data-server " << programBundle().shortVersion.view() << '\n';
            std::exit(EXIT_SUCCESS);
        case 'h':
            std::cout << help;
            std::exit(EXIT_SUCCESS);
        default:
            std::exit(usageError);
        }
    }
    if (optind < argc)
        refuse(std::string("it does not know what to do with ") + argv[optind]);
    if (settings.offer == DataServerSettings::Offer::NewerVersion
        && settings.content != DataServerSettings::Content::Demo)
        refuse("--demo-update goes with --demo alone");
    return settings;
}

/// The signals that end the program, blocked in all its threads, so that they can be waited for.
sigset_t blockTerminationSignals()
{
    sigset_t signals{};
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signals;
}

} // namespace

int main(int argc, char** argv)
{
    const DataServerSettings settings = settingsFrom(argc, argv);
    const sigset_t terminationSignals = blockTerminationSignals();
    const auto server = DataServer::create(settings);
    if (!server) {
        printError(server.error());
        return EXIT_FAILURE;
    }
    std::cout << "listening on " << (*server)->baseAddress().view() << std::endl;
    int signal = 0;
    sigwait(&terminationSignals, &signal);
    return EXIT_SUCCESS;
}
