#!/usr/bin/python3
"""From the start of the process to the first painting of its window, as an X client sees it: the player with 10 and with
100,000 stations against an empty Qt Widgets window, in turn."""

import sys
import time

import setting


def main(runs):
    with setting.desktop.Desktop(accessibility=False, sound=False) as desk, setting.data_server() as server, \
            setting.home(10) as few, setting.home(100_000) as many:
        commands = {
            "an empty Qt window": [setting.BUILD / "bench" / "empty_window"],
            "the player, 10 stations": setting.player_command(few, server),
            "the player, 100,000 stations": setting.player_command(many, server)}
        times = {name: [] for name in commands}
        for _ in range(runs + 1):
            for name, command in commands.items():
                times[name].append(setting.first_painting(desk, "start", *command))
                time.sleep(0.3)
        medians = [setting.row(name, values[1:], "ms") for name, values in times.items()]
    setting.verdict("10 stations / empty window", medians[1] / medians[0], 2.0)
    setting.verdict("100,000 stations - 10 stations", medians[2] - medians[1], 250, "ms")


if __name__ == "__main__":
    main(int(sys.argv[1]) if len(sys.argv) > 1 else 15)
