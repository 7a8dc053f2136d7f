#!/usr/bin/python3
"""Opening the pop-up with 100,000 stations, from the key to its first painting, and the memory of the process then, above
that of the player with 10 stations."""

import subprocess
import sys
import time

from Xlib import X, display
from Xlib.ext import damage

import setting


def open_pop_up(desk, screen, command):
    """Milliseconds until the opened list is painted, and the proportional memory of the player then."""
    process = subprocess.Popen(command, env=desk.environment, stderr=subprocess.DEVNULL)
    try:
        desk.keys("Shift_L")
        window = desk.window("Sonavel")
        subprocess.run(["xdotool", "windowactivate", "--sync", str(window)], env=desk.environment, check=True,
                       stderr=subprocess.DEVNULL)
        time.sleep(1)
        screen.screen().root.change_attributes(event_mask=X.SubstructureNotifyMask)
        screen.sync()
        while screen.pending_events():
            screen.next_event()
        key = subprocess.Popen(["xdotool", "-"], env=desk.environment, stdin=subprocess.PIPE, text=True)
        time.sleep(0.2)
        begin = time.perf_counter()
        key.stdin.write("key --delay 0 space\n")
        key.stdin.close()
        while time.perf_counter() - begin < 20:
            event = screen.next_event()
            if event.type == X.CreateNotify and event.width > 50:
                event.window.damage_create(damage.DamageReportNonEmpty)
                screen.flush()
            elif event.type == screen.extension_event.DamageNotify:
                elapsed = 1000 * (time.perf_counter() - begin)
                key.wait()
                time.sleep(0.5)
                return elapsed, setting.proportional_memory([process.pid])
        raise TimeoutError("the pop-up did not open")
    finally:
        process.terminate()
        process.wait()
        time.sleep(0.3)


def main(runs):
    with setting.desktop.Desktop(accessibility=False, sound=False) as desk, setting.data_server() as server, \
            setting.home(10) as few, setting.home(100_000) as many:
        screen = display.Display(desk.environment["DISPLAY"])
        screen.damage_query_version()
        small = [open_pop_up(desk, screen, setting.player_command(few, server)) for _ in range(runs)]
        large = [open_pop_up(desk, screen, setting.player_command(many, server)) for _ in range(runs)]
    setting.row("opening, 10 stations", [elapsed for elapsed, _ in small], "ms")
    opening = setting.row("opening, 100,000 stations", [elapsed for elapsed, _ in large], "ms")
    before = setting.row("memory, 10 stations", [memory for _, memory in small], "MiB")
    after = setting.row("memory, 100,000 stations", [memory for _, memory in large], "MiB")
    setting.verdict("opening the pop-up", opening, 150, "ms")
    setting.verdict("memory above the player with 10 stations", after - before, 60, "MiB")


if __name__ == "__main__":
    main(int(sys.argv[1]) if len(sys.argv) > 1 else 9)
