#include "adapters/engineclient/EngineConnection.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <optional>
#include <thread>
#include <utility>

namespace sonavel {

namespace {

/// Starts the program with its end of the socket as its standard input, and nothing else of this process but the
/// channel for error messages.
std::optional<pid_t> spawn(const std::string& program, int engineSocket)
{
    posix_spawn_file_actions_t files{};
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_adddup2(&files, engineSocket, STDIN_FILENO);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
    // The player may have blocked or ignored signals for itself.
    posix_spawnattr_t attributes{};
    posix_spawnattr_init(&attributes);
    sigset_t signals{};
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes, &signals);
    sigset_t defaults{};
    sigfillset(&defaults);
    posix_spawnattr_setsigdefault(&attributes, &defaults);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);

    std::string name = program;
    std::array<char*, 2> arguments{name.data(), nullptr};
    pid_t process = 0;
    const int error = posix_spawn(&process, program.c_str(), &files, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    if (error != 0)
        return std::nullopt;
    return process;
}

} // namespace

std::unique_ptr<EngineConnection> EngineConnection::create(
    EventLoop& eventLoop, const std::string& program, Receive receive, Lost lost)
{
    std::array<int, 2> sockets{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets.data()) != 0)
        return nullptr;
    const auto process = spawn(program, sockets[1]);
    close(sockets[1]);
    if (!process) {
        close(sockets[0]);
        return nullptr;
    }
    return std::unique_ptr<EngineConnection>(
        new EngineConnection(eventLoop, sockets[0], *process, std::move(receive), std::move(lost)));
}

EngineConnection::EngineConnection(EventLoop& eventLoop, int socket, pid_t process, Receive receive, Lost lost)
    : eventLoop_(eventLoop)
    , socket_(socket)
    , process_(process)
    , receive_(std::move(receive))
    , lost_(std::move(lost))
    , reading_(eventLoop.whenReadable(socket, [this] { read(); }))
{
}

EngineConnection::~EngineConnection()
{
    reading_.reset();
    close(socket_);
    kill(process_, SIGKILL);
    // Even a killed process may take its time, when a driver holds it.
    std::thread([process = process_] { waitpid(process, nullptr, 0); }).detach();
}

void EngineConnection::send(const EngineCommand& command)
{
    const std::string line = lineFromCommand(command);
    const ssize_t sent = ::send(socket_, line.data(), line.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    // An engine that lets hundreds of lines lie is as good as gone.
    if (sent != static_cast<ssize_t>(line.size()) && !losing_)
        losing_ = eventLoop_.after(std::chrono::milliseconds(0), [this] { lose(); });
}

void EngineConnection::read()
{
    std::array<char, 4096> bytes{};
    const ssize_t count = recv(socket_, bytes.data(), bytes.size(), MSG_DONTWAIT);
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (count <= 0) {
        lose();
        return;
    }
    lines_.append({bytes.data(), static_cast<std::size_t>(count)});
    while (const auto line = lines_.nextLine())
        if (const auto event = eventFromLine(*line))
            receive_(*event);
}

void EngineConnection::lose()
{
    reading_.reset();
    if (const Lost lost = std::exchange(lost_, nullptr))
        lost();
}

} // namespace sonavel
