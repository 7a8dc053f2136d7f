#!/usr/bin/python3
"""Opening the pop-up with 100,000 stations, from the key to its first painting, and the memory of the player then, above
that of the player with 10 stations."""

import subprocess
import sys
import time

import setting


def open_pop_up(desk, command):
    """Milliseconds until the opened list is painted, and the proportional memory of the player then."""
    process = subprocess.Popen(command, env=desk.environment, stderr=subprocess.DEVNULL)
    try:
        desk.activate("Sonavel")
        time.sleep(1)
        opening = setting.first_painting(desk, "key", "space")
        time.sleep(0.5)
        return opening, setting.proportional_memory([process.pid])
    finally:
        process.terminate()
        process.wait()
        time.sleep(0.3)


def main(runs):
    with setting.desktop.Desktop(accessibility=False, sound=False) as desk, setting.data_server() as server, \
            setting.home(10) as few, setting.home(100_000) as many:
        small = [open_pop_up(desk, setting.player_command(few, server)) for _ in range(runs)]
        large = [open_pop_up(desk, setting.player_command(many, server)) for _ in range(runs)]
    setting.row("opening, 10 stations", [opening for opening, _ in small], "ms")
    opening = setting.row("opening, 100,000 stations", [opening for opening, _ in large], "ms")
    before = setting.row("memory, 10 stations", [memory for _, memory in small], "MiB")
    after = setting.row("memory, 100,000 stations", [memory for _, memory in large], "MiB")
    setting.verdict("opening the pop-up", opening, 150, "ms")
    setting.verdict("memory above the player with 10 stations", after - before, 60, "MiB")


if __name__ == "__main__":
    main(int(sys.argv[1]) if len(sys.argv) > 1 else 9)
