// The engine: plays one stream at a time for the player, which speaks to it over the socket at its standard input. It
// ends when that socket closes.

#include "engine/Confinement.h"
#include "engine/LineReader.h"
#include "engine/MpvEngine.h"
#include "engine/Protocol.h"

#include <malloc.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace sonavel;

constexpr int playerSocket = STDIN_FILENO;

/// Ends the process when the player does not take it: then nobody is there any more.
void sendEvent(const EngineEvent& event)
{
    const std::string line = lineFromEvent(event);
    for (std::size_t sent = 0; sent < line.size();) {
        const ssize_t count = send(playerSocket, line.data() + sent, line.size() - sent, MSG_NOSIGNAL);
        if (count < 0 && errno != EINTR)
            std::_Exit(EXIT_SUCCESS);
        sent += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
}

/// Whether the player is still there.
bool handleCommands(MpvEngine& engine, LineReader& lines)
{
    std::array<char, 4096> bytes{};
    const ssize_t count = recv(playerSocket, bytes.data(), bytes.size(), 0);
    if (count <= 0)
        return count < 0 && errno == EINTR;
    lines.append({bytes.data(), static_cast<std::size_t>(count)});
    while (const auto line = lines.nextLine())
        if (const auto command = commandFromLine(*line))
            engine.perform(*command);
    return true;
}

void run(MpvEngine& engine)
{
    LineReader lines;
    std::array<pollfd, 2> sources{pollfd{playerSocket, POLLIN, 0}, pollfd{engine.wakeUpDescriptor(), POLLIN, 0}};
    for (;;) {
        if (poll(sources.data(), sources.size(), -1) < 0 && errno != EINTR)
            return;
        if (sources[1].revents != 0) {
            std::array<char, 256> wakeUps{};
            (void)!read(sources[1].fd, wakeUps.data(), wakeUps.size());
        }
        if (sources[0].revents != 0 && !handleCommands(engine, lines))
            return;
        engine.handleEvents();
    }
}

} // namespace

int main()
{
    // For the case that it cannot watch the socket, being stuck in libmpv.
    (void)prctl(PR_SET_PDEATHSIG, SIGKILL);
    // libmpv starts threads for every stream; an arena for each would keep what streams of the past have used.
    (void)mallopt(M_ARENA_MAX, 1);
    // Otherwise it would rise with the first large buffer that is freed, and large buffers would stay with the process.
    (void)mallopt(M_MMAP_THRESHOLD, 256 * 1024);
    if (!enterSandbox())
        (void)std::fputs("sonavel-engine: this system cannot confine it, so it plays unconfined\n", stderr);
    (void)std::setlocale(LC_NUMERIC, "C");
    const auto engine = MpvEngine::create(sendEvent);
    if (engine == nullptr) {
        (void)std::fputs("sonavel-engine: libmpv cannot be set up\n", stderr);
        return EXIT_FAILURE;
    }
    run(*engine);
    // The sound ends with the process; there is nothing to put in order.
    std::_Exit(EXIT_SUCCESS);
}
