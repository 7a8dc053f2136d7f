"""A desktop of its own for one test: a virtual display, a window manager, a message bus and a sound server.

Everything lives in a temporary folder and ends with the `with` block.
"""

import array
import os
import shutil
import signal
import subprocess
import tempfile
import time
from pathlib import Path

RATE = 44100


def wait_until(condition, what, seconds=20.0):
    """Asks `condition` until it answers something true, and returns that."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        answer = condition()
        if answer:
            return answer
        time.sleep(0.02)
    raise TimeoutError(f"waited {seconds} s in vain for {what}")


class Recording:
    """What is heard at the sound server's null sink, as 16-bit mono samples."""

    def __init__(self, environment):
        self.process = subprocess.Popen(
            ["parec", "--device=null.monitor", "--raw", "--format=s16le", f"--rate={RATE}", "--channels=1",
             "--latency-msec=5"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, env=environment)

    def read(self, seconds):
        samples = array.array("h")
        samples.frombytes(self.process.stdout.read(2 * int(seconds * RATE)))
        return samples

    def __enter__(self):
        self.read(0.1)
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()
        self.process.stdout.close()


def loudness(samples):
    """The root mean square, 0 for silence and 1 for full scale."""
    return (sum(sample * sample for sample in samples) / max(1, len(samples))) ** 0.5 / 32768


class Desktop:
    def __init__(self, size="1000x700", accessibility=True, sound=True):
        self.size = size
        self.accessibility = accessibility
        self.sound = sound
        self.processes = []

    def __enter__(self):
        self.folder = Path(tempfile.mkdtemp(prefix="sonavel-desktop-"))
        runtime = self.folder / "run"
        runtime.mkdir(mode=0o700)
        home = self.folder / "home"
        home.mkdir()
        kept = {name: value for name, value in os.environ.items() if not name.startswith(("XDG_", "SONAVEL_", "QT_"))}
        self.environment = kept | {
            "HOME": str(home), "XDG_RUNTIME_DIR": str(runtime), "LC_ALL": "C.UTF-8", "NO_AT_BRIDGE": "0",
            "PULSE_SERVER": f"unix:{runtime}/pulse/native", "QT_QPA_PLATFORM": "xcb"}
        self.environment.pop("WAYLAND_DISPLAY", None)
        # Noon: in the last half hour of a day the player checks for a newer version at every start.
        self.environment["TZ"] = f"UTC{time.gmtime().tm_hour - 12:+d}"
        try:
            self._start_display()
            self._start_bus()
            if self.sound:
                self._start_sound()
            self._start_window_manager()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.send_signal(signal.SIGTERM)
        for process in reversed(self.processes):
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self, command, **options):
        """Starts a program on this desktop; it is ended with it."""
        options.setdefault("stderr", subprocess.DEVNULL)
        process = subprocess.Popen(command, env=self.environment | options.pop("extra", {}), **options)
        self.processes.append(process)
        return process

    def screenshot(self, path):
        subprocess.run(["import", "-window", "root", str(path)], env=self.environment, check=True)

    def keys(self, *names):
        subprocess.run(["xdotool", "key", "--clearmodifiers", *names], env=self.environment, check=True)

    def type(self, text):
        subprocess.run(["xdotool", "type", "--delay", "5", "--", text], env=self.environment, check=True)

    def click(self, control, times=1):
        x, y = control.center
        subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "--repeat", str(times), "--delay", "50", "1"],
                       env=self.environment, check=True)

    def window_title(self, pattern):
        return subprocess.run(["xdotool", "getwindowname", str(self.window(pattern))], env=self.environment, check=True,
                              capture_output=True, text=True).stdout.strip()

    def _windows(self, title):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"], env=self.environment,
                               capture_output=True, text=True, check=False)
        return found.stdout.split()

    def number_of_windows(self, title):
        return len(self._windows(title))

    def is_shown(self, title):
        return bool(self._windows(title))

    def window(self, title):
        """The identifier of the visible window of that title, once it is there."""
        return int(wait_until(lambda: self._windows(title), f"the window {title}")[-1])

    def activate(self, title):
        """Waits for the visible window of that title, and gives it the keyboard."""
        subprocess.run(["xdotool", "windowactivate", "--sync", str(self.window(title))], env=self.environment,
                       check=True, stderr=subprocess.DEVNULL, timeout=20)

    def record(self):
        return Recording(self.environment)

    def _start_display(self):
        reading, writing = os.pipe()
        self.start(["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{self.size}x24", "-nolisten", "tcp",
                    "-noreset"],
                   pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as display:
            self.environment["DISPLAY"] = ":" + display.readline().strip()

    def _start_bus(self):
        bus = self.start(["dbus-daemon", "--session", "--nofork", "--print-address"], stdout=subprocess.PIPE, text=True)
        with bus.stdout:
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        if self.accessibility:
            self.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
            self.start(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"])

    def _start_window_manager(self):
        """A window that is shown before the window manager is ready may stay hidden for good."""
        self.start(["openbox", "--sm-disable"])
        ask = ["xprop", "-root", "_NET_CLIENT_LIST"]  # set last when it starts
        wait_until(lambda: "window id" in subprocess.run(ask, env=self.environment, capture_output=True, text=True,
                                                         check=False).stdout, "the window manager")

    def _start_sound(self):
        self.start(["pulseaudio", "--daemonize=no", "--exit-idle-time=-1", "-n", "-L",
                    "module-null-sink sink_name=null", "-L", "module-native-protocol-unix"])
        ask = ["pactl", "info"]
        wait_until(lambda: subprocess.run(ask, env=self.environment, capture_output=True, check=False).returncode == 0,
                   "the sound server")
