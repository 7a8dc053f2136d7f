#!/usr/bin/python3
"""From the start of the process to the first painting of its window, as an X client sees it: the player with 10 and with
100,000 stations against an empty Qt Widgets window, in turn."""

import subprocess
import sys
import time

from Xlib import X, display
from Xlib.ext import damage

import setting


def first_painting(screen, command, environment):
    """Seconds from the start of `command` to the first damage of its window."""
    screen.screen().root.change_attributes(event_mask=X.SubstructureNotifyMask)
    screen.sync()
    begin = time.perf_counter()
    process = subprocess.Popen(command, env=environment, stderr=subprocess.DEVNULL)
    try:
        watched = {}
        while time.perf_counter() - begin < 20:
            event = screen.next_event()
            if event.type == X.CreateNotify and event.width > 100 and event.height > 100:
                watched[event.window.id] = event.window
                event.window.damage_create(damage.DamageReportNonEmpty)
                screen.flush()
            elif event.type == screen.extension_event.DamageNotify and event.drawable.id in watched:
                if watched[event.drawable.id].get_wm_class():
                    return time.perf_counter() - begin
        raise TimeoutError("no window was painted")
    finally:
        process.kill()
        process.wait()
        time.sleep(0.3)
        while screen.pending_events():
            screen.next_event()


def main(runs):
    with setting.desktop.Desktop(accessibility=False, sound=False) as desk, setting.data_server() as server, \
            setting.home(10) as few, setting.home(100_000) as many:
        screen = display.Display(desk.environment["DISPLAY"])
        screen.damage_query_version()
        commands = {
            "an empty Qt window": [str(setting.BUILD / "bench" / "empty_window")],
            "the player, 10 stations": setting.player_command(few, server),
            "the player, 100,000 stations": setting.player_command(many, server)}
        times = {name: [] for name in commands}
        for _ in range(runs + 1):
            for name, command in commands.items():
                times[name].append(1000 * first_painting(screen, command, desk.environment))
        medians = [setting.row(name, values[1:], "ms") for name, values in times.items()]
    setting.verdict("10 stations / empty window", medians[1] / medians[0], 2.0)
    setting.verdict("100,000 stations - 10 stations", medians[2] - medians[1], 250, "ms")


if __name__ == "__main__":
    main(int(sys.argv[1]) if len(sys.argv) > 1 else 15)
