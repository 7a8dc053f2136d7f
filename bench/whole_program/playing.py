#!/usr/bin/python3
"""Processor time and proportional memory while a stream plays: player and engine together against bare mpv with its
defaults on the same stream, one after the other; no recorder runs."""

import sys
import time

import setting


def measure(desk, command, seconds):
    """Processor seconds over `seconds` of playing, and proportional memory in MiB at their end."""
    process = desk.start(command)
    time.sleep(6)
    before = setting.processor_time(setting.family(process))
    time.sleep(seconds)
    pids = setting.family(process)
    used, memory = setting.processor_time(pids) - before, setting.proportional_memory(pids)
    process.terminate()
    process.wait()
    return used, memory


def main(runs, seconds):
    figures = {"bare mpv": [], "player and engine": []}
    with setting.desktop.Desktop(accessibility=False) as desk, setting.data_server("--demo") as server:
        address = setting.demo_stream(server)
        with setting.home(10, address, isAutoPlayOpenApp="YES") as folder:
            for _ in range(runs):
                figures["bare mpv"].append(measure(desk, ["mpv", "--no-video", "--really-quiet", address], seconds))
                figures["player and engine"].append(measure(desk, setting.player_command(folder, server), seconds))
    processor = [setting.row(f"{name}, processor time", [1000 * used for used, _ in values], "ms")
                 for name, values in figures.items()]
    memory = [setting.row(f"{name}, proportional memory", [size for _, size in values], "MiB")
              for name, values in figures.items()]
    setting.verdict("processor time, player / mpv", processor[1] / processor[0], 0.5)
    setting.verdict("proportional memory, player / mpv", memory[1] / memory[0], 1.6)


if __name__ == "__main__":
    main(int(sys.argv[1]) if len(sys.argv) > 1 else 3, int(sys.argv[2]) if len(sys.argv) > 2 else 60)
