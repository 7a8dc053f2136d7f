#!/usr/bin/python3
"""From Play pressed to the first sample that is not zero at the null sink's monitor, the engine started: the player against
a bare libmpv program that loads the same stream, in turn, with the same recorder."""

import subprocess
import sys
import time

import setting


def first_sound(recording, begin):
    """Seconds from `begin` to the first sample that is not zero."""
    while time.perf_counter() - begin < 20:
        if any(recording.read(0.002)):
            return time.perf_counter() - begin
    raise TimeoutError("nothing was heard")


def bare(desk, address):
    process = subprocess.Popen([setting.BUILD / "bench" / "bare_player", address], env=desk.environment, text=True,
                               stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    try:
        process.stdout.readline()
        time.sleep(0.5)
        with desk.record() as recording:
            begin = time.perf_counter()
            process.stdin.write("\n")
            process.stdin.flush()
            return first_sound(recording, begin)
    finally:
        process.kill()
        process.wait()


def player(desk, server, folder):
    process = subprocess.Popen(setting.player_command(folder, server), env=desk.environment, stderr=subprocess.DEVNULL)
    try:
        desk.activate("Sonavel")
        desk.keys("Tab", "Tab")
        time.sleep(1)
        with desk.record() as recording:
            key = subprocess.Popen(["xdotool", "-"], env=desk.environment, stdin=subprocess.PIPE, text=True)
            time.sleep(0.2)
            begin = time.perf_counter()
            key.communicate("key --delay 0 space\n")
            return first_sound(recording, begin)
    finally:
        process.terminate()
        process.wait()


def main(runs):
    with setting.desktop.Desktop(accessibility=False) as desk, setting.data_server("--demo") as server:
        address = setting.demo_stream(server)
        with setting.home(10, address) as folder:
            times = {"bare libmpv": [], "the player": []}
            for _ in range(runs + 1):
                times["bare libmpv"].append(1000 * bare(desk, address))
                times["the player"].append(1000 * player(desk, server, folder))
    medians = [setting.row(name, values[1:], "ms") for name, values in times.items()]
    setting.verdict("the player - bare libmpv", medians[1] - medians[0], 30, "ms")


if __name__ == "__main__":
    main(int(sys.argv[1]) if len(sys.argv) > 1 else 11)
