#!/usr/bin/python3
"""From a key on the volume, Pause, Stop and Mute to what is heard at the null sink's monitor, while a steady tone plays."""

import array
import http.server
import math
import struct
import subprocess
import sys
import threading
import time
from contextlib import contextmanager

import setting
from desktop import RATE, loudness


class Tone(http.server.BaseHTTPRequestHandler):
    """An endless tone as a WAV stream, sent at the speed at which it is played."""

    second = array.array("h", (int(12000 * math.sin(2 * math.pi * 1000 * n / RATE)) for n in range(RATE))).tobytes()

    def do_GET(self):
        self.send_response(200)
        self.send_header("Content-Type", "audio/wav")
        self.end_headers()
        self.wfile.write(b"RIFF" + struct.pack("<I", 0xFFFFFFFF) + b"WAVEfmt " +
                         struct.pack("<IHHIIHH", 16, 1, 1, RATE, 2 * RATE, 2, 16) +
                         b"data" + struct.pack("<I", 0xFFFFFFFF))
        try:
            self.wfile.write(self.second * 3)
            while True:
                self.wfile.write(self.second)
                time.sleep(1)
        except OSError:
            pass

    def log_message(self, *_):
        pass


@contextmanager
def tone_server():
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Tone)
    server.daemon_threads = True
    threading.Thread(target=server.serve_forever, daemon=True).start()
    try:
        yield f"http://127.0.0.1:{server.server_port}/tone.wav"
    finally:
        server.shutdown()


def heard(desk, recording, key, changed):
    """Milliseconds from the key to the first 5 ms of sound for which `changed` holds."""
    for _ in range(20):
        recording.read(0.01)
    sender = subprocess.Popen(["xdotool", "-"], env=desk.environment, stdin=subprocess.PIPE, text=True)
    end = time.perf_counter() + 0.2
    while time.perf_counter() < end:
        recording.read(0.005)
    begin = time.perf_counter()
    sender.stdin.write(f"key --delay 0 {key}\n")
    sender.stdin.close()
    while time.perf_counter() - begin < 10:
        if changed(loudness(recording.read(0.005))):
            sender.wait()
            return 1000 * (time.perf_counter() - begin)
    raise TimeoutError(f"{key} changed nothing")


def until(recording, condition):
    for _ in range(2000):
        if condition(loudness(recording.read(0.01))):
            return
    raise TimeoutError("the sound did not come")


def main(runs):
    figures = {"volume": [], "Pause": [], "Stop": [], "Mute": []}
    with setting.desktop.Desktop(accessibility=False) as desk, setting.data_server() as server, \
            tone_server() as address, setting.home(10, address, isAutoPlayOpenApp="YES") as folder:
        desk.start(setting.player_command(folder, server))
        desk.activate("Sonavel")
        with desk.record() as recording:
            until(recording, lambda level: level > 0.02)
            full = loudness(recording.read(0.5))

            def silent(level):
                return level < full / 20

            def sounding(level):
                return level > full / 2

            desk.keys("Tab")
            for _ in range(runs):
                figures["volume"].append(heard(desk, recording, "Home", silent))
                desk.keys("End")
                until(recording, sounding)
            desk.keys("Tab")
            for _ in range(runs):
                figures["Pause"].append(heard(desk, recording, "space", silent))
                desk.keys("space")
                until(recording, sounding)
            desk.keys("Tab")
            for _ in range(runs):
                figures["Stop"].append(heard(desk, recording, "space", silent))
                desk.keys("shift+Tab", "space", "Tab")
                until(recording, sounding)
            desk.keys("Tab")
            for _ in range(runs):
                figures["Mute"].append(heard(desk, recording, "space", silent))
                desk.keys("space")
                until(recording, sounding)
    for name, values in figures.items():
        setting.verdict(f"{name} pressed to heard", setting.row(name, values, "ms"), 150, "ms")


if __name__ == "__main__":
    main(int(sys.argv[1]) if len(sys.argv) > 1 else 9)
