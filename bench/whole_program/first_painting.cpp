// Prints the milliseconds until a new window is painted, as an X client sees it:
//   first_painting start COMMAND [ARGUMENT...]   from the start of the command; ends the command afterwards
//   first_painting key KEYSYM                    from a key press that it makes itself

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

extern char** environ;

namespace {

using Clock = std::chrono::steady_clock;
constexpr auto patience = std::chrono::seconds(20);

int ignoreError(Display*, XErrorEvent*)
{
    return 0;
}

bool waitForEvent(Display* display, Clock::time_point begin)
{
    while (XPending(display) == 0) {
        pollfd readable{ConnectionNumber(display), POLLIN, 0};
        poll(&readable, 1, 100);
        if (Clock::now() - begin > patience)
            return false;
    }
    return true;
}

/// Whether it is a program's own window rather than the frame that a window manager puts around it.
bool belongsToProgram(Display* display, Window window)
{
    XClassHint hint{};
    if (XGetClassHint(display, window, &hint) == 0)
        return false;
    XFree(hint.res_name);
    XFree(hint.res_class);
    return true;
}

bool waitForPainting(Display* display, Clock::time_point begin)
{
    int damageEvent = 0;
    int damageError = 0;
    XDamageQueryExtension(display, &damageEvent, &damageError);
    std::vector<Window> watched;
    while (waitForEvent(display, begin)) {
        XEvent event{};
        XNextEvent(display, &event);
        if (event.type == CreateNotify && event.xcreatewindow.width > 50 && event.xcreatewindow.height > 50) {
            XDamageCreate(display, event.xcreatewindow.window, XDamageReportNonEmpty);
            watched.push_back(event.xcreatewindow.window);
        } else if (event.type == damageEvent + XDamageNotify) {
            const Window window = reinterpret_cast<XDamageNotifyEvent*>(&event)->drawable;
            const Clock::time_point now = Clock::now();
            if (std::find(watched.begin(), watched.end(), window) == watched.end()
                || !belongsToProgram(display, window))
                continue;
            std::printf("%.2f\n", std::chrono::duration<double, std::milli>(now - begin).count());
            return true;
        }
    }
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr || argc < 3)
        return EXIT_FAILURE;
    XSetErrorHandler(ignoreError);
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
    XSync(display, False);

    const Clock::time_point begin = Clock::now();
    pid_t process = -1;
    if (std::string_view(argv[1]) == "start") {
        if (posix_spawnp(&process, argv[2], nullptr, nullptr, argv + 2, environ) != 0)
            return EXIT_FAILURE;
    } else {
        const KeyCode key = XKeysymToKeycode(display, XStringToKeysym(argv[2]));
        XTestFakeKeyEvent(display, key, True, CurrentTime);
        XTestFakeKeyEvent(display, key, False, CurrentTime);
        XFlush(display);
    }
    const bool painted = waitForPainting(display, begin);
    if (process > 0) {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }
    return painted ? EXIT_SUCCESS : EXIT_FAILURE;
}
