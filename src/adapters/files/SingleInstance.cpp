#include "adapters/files/SingleInstance.h"

#include "adapters/files/SystemCalls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <thread>

namespace sonavel {

namespace {

constexpr std::chrono::seconds maxWait{5};

/// The path of a socket has a small limit, and "/sonavel/", twenty digits and the suffix are appended.
constexpr std::size_t maxFolderLength = sizeof(sockaddr_un::sun_path) - 40;
constexpr std::chrono::milliseconds pause{20};

/// The same for all paths of one folder.
std::string nameOf(const std::string& homeDirectory)
{
    std::error_code none;
    auto canonical = std::filesystem::weakly_canonical(homeDirectory, none).string();
    while (canonical.ends_with('/'))
        canonical.pop_back();
    return std::to_string(std::hash<std::string>()(canonical));
}

bool isOwnFolder(const std::string& folder)
{
    struct stat status = {};
    return ::lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::getuid()
        && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

/// The error is `operation_would_block` when another process holds the lock.
tl::expected<int, std::error_code> lockFile(const std::string& path)
{
    const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (file >= 0 && ::flock(file, LOCK_EX | LOCK_NB) == 0)
        return file;
    const std::error_code failure = lastError();
    if (file >= 0)
        ::close(file);
    return tl::unexpected(failure);
}

sockaddr_un addressOf(const std::string& path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    return address;
}

int openSocket()
{
    return ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

/// Replaces the socket that a former process left.
int listeningSocket(const std::string& path)
{
    const int socket = openSocket();
    const sockaddr_un address = addressOf(path);
    ::unlink(path.c_str());
    if (socket < 0 || ::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return socket;
    ::close(socket);
    return -1;
}

bool activate(const std::string& path)
{
    const int socket = openSocket();
    const sockaddr_un address = addressOf(path);
    const char note = 1;
    const bool isSent =
        ::sendto(socket, &note, sizeof note, 0, reinterpret_cast<const sockaddr*>(&address), sizeof address) >= 0
        || errno == EAGAIN; // enough activations are waiting
    ::close(socket);
    return isSent;
}

} // namespace

std::string SingleInstance::usersRunTimeFolder()
{
    const char* given = std::getenv("XDG_RUNTIME_DIR");
    const bool isUsable = given != nullptr && *given == '/' && std::strlen(given) <= maxFolderLength;
    std::string folder = isUsable ? std::string(given) + "/sonavel" : "/tmp/sonavel-" + std::to_string(::getuid());
    ::mkdir(folder.c_str(), S_IRWXU);
    return isOwnFolder(folder) ? folder : std::string();
}

tl::expected<std::unique_ptr<SingleInstance>, OtherInstance> SingleInstance::claim(
    const std::string& runTimeFolder, const std::string& homeDirectory)
{
    const auto instance = [](int lock, int socket) {
        return std::unique_ptr<SingleInstance>(new SingleInstance(lock, socket));
    };
    if (runTimeFolder.empty())
        return instance(-1, -1);
    const std::string path = runTimeFolder + "/" + nameOf(homeDirectory);
    const auto end = std::chrono::steady_clock::now() + maxWait;
    do {
        const auto lock = lockFile(path + ".lock");
        if (lock || lock.error() != std::errc::operation_would_block)
            return instance(lock.value_or(-1), listeningSocket(path + ".socket"));
        // Between its lock and its socket the other instance cannot be activated yet.
        if (activate(path + ".socket"))
            return tl::unexpected(OtherInstance::Activated);
        std::this_thread::sleep_for(pause);
    } while (std::chrono::steady_clock::now() < end);
    return tl::unexpected(OtherInstance::NotResponding);
}

SingleInstance::SingleInstance(int lock, int socket)
    : lock_(lock)
    , socket_(socket)
{
}

SingleInstance::~SingleInstance()
{
    activations_.reset();
    if (socket_ >= 0)
        ::close(socket_);
    if (lock_ >= 0)
        ::close(lock_);
}

void SingleInstance::onActivated(EventLoop& eventLoop, std::function<void()> callback)
{
    if (socket_ < 0)
        return;
    activations_ = eventLoop.whenReadable(socket_, [socket = socket_, callback = std::move(callback)] {
        char note = 0;
        while (::recv(socket, &note, sizeof note, 0) >= 0) { }
        callback();
    });
}

} // namespace sonavel
