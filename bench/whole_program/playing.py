#!/usr/bin/python3
"""Processor time and proportional memory while a stream plays: player and engine together against bare mpv with its
defaults on the same stream, one after the other; no recorder runs.

With "reconnect" as its first argument: the engine's private memory while a stream plays, once it was dropped and opened again,
and so many minutes (five unless given) after that."""

import http.server
import sys
import threading
import time
import urllib.request

import setting


class Relay(http.server.ThreadingHTTPServer):
    """Passes a stream on to its listeners, and drops them on demand."""

    def __init__(self, stream):
        super().__init__(("127.0.0.1", 0), Relay.Handler)
        self.stream = stream
        self.listeners = 0
        self.drops = 0
        threading.Thread(target=self.serve_forever, daemon=True).start()

    @property
    def address(self):
        return f"http://127.0.0.1:{self.server_port}/"

    class Handler(http.server.BaseHTTPRequestHandler):
        def do_GET(self):
            self.server.listeners += 1
            drops = self.server.drops
            with urllib.request.urlopen(self.server.stream) as stream:
                self.send_response(200)
                self.send_header("Content-Type", stream.headers["Content-Type"])
                self.end_headers()
                while self.server.drops == drops and (piece := stream.read1(4096)):
                    self.wfile.write(piece)

        def log_message(self, *_):
            pass


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


def measure_reconnect(minutes):
    with setting.desktop.Desktop(accessibility=False) as desk, setting.data_server("--demo") as server, \
            Relay(setting.demo_stream(server)) as relay, \
            setting.home(10, relay.address, isAutoPlayOpenApp="YES") as folder:
        process = desk.start(setting.player_command(folder, server))
        setting.desktop.wait_until(lambda: relay.listeners == 1, "the stream to be asked for")
        time.sleep(60)
        engine = setting.family(process)[1]
        figures = {"playing for a minute": setting.private_memory(engine)}
        relay.drops += 1
        setting.desktop.wait_until(lambda: relay.listeners == 2, "the stream to be asked for again", 60)
        time.sleep(20)
        figures["opened again"] = setting.private_memory(engine)
        time.sleep(60 * minutes)
        figures[f"{minutes} minutes later"] = setting.private_memory(engine)
        assert setting.family(process)[1] == engine and relay.listeners == 2
        process.terminate()
        process.wait()
    for when, size in figures.items():
        print(f"private memory of the engine, {when:24} {size:6.1f} MiB")
    first, *_, last = figures.values()
    setting.verdict("growth by the reconnect", last - first, 3, "MiB")


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
    if sys.argv[1:2] == ["reconnect"]:
        measure_reconnect(int(sys.argv[2]) if len(sys.argv) > 2 else 5)
    else:
        main(int(sys.argv[1]) if len(sys.argv) > 1 else 3, int(sys.argv[2]) if len(sys.argv) > 2 else 60)
