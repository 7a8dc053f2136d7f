"""What the whole-program measurements share: the built programs, a home with stations, a data server, and figures."""

import base64
import plistlib
import statistics
import subprocess
import sys
import tempfile
import urllib.request
from contextlib import contextmanager
from datetime import datetime, timezone
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
BUILD = ROOT / "build" / "release"
PLAYER = BUILD / "sonavel"
ENGINE = BUILD / "sonavel-engine"
sys.path.insert(0, str(ROOT / "tests" / "end_to_end"))

import desktop  # noqa: E402

KEY = b"A48958B191A1424E189DAB58F4695D6F"


@contextmanager
def data_server(*options):
    """The data server on a free port; gives its base address."""
    server = subprocess.Popen([BUILD / "sonavel-data-server", "--port", "0", *options], stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True)
    try:
        yield server.stdout.readline().split()[-1]
    finally:
        server.terminate()
        server.wait()


def stations(count, address):
    """A list of `count` stations in the program's order, the first of which plays `address`."""
    yield "Aaa", address
    for number in range(1, count):
        yield f"Radio {number:06} Musique", f"http://stream{number % 97}.example.org:8000/station/{number}.mp3"


def write_home(folder, count, address="http://127.0.0.1:9/", **preferences):
    """Fills a home directory: the station database, and preferences for which no online check is due."""
    store = Path(folder) / "Library" / "Preferences"
    store.mkdir(parents=True)
    text = "".join(f"{name};{link}\r" for name, link in stations(count, address)).encode()
    encrypted = subprocess.run(["openssl", "enc", "-aes-256-cbc", "-K", KEY.hex(), "-iv", "0" * 32], input=text,
                               capture_output=True, check=True).stdout
    (store / "radiolist.rdb").write_bytes(base64.b64encode(encrypted))
    now = datetime.now(timezone.utc).strftime("%Y-%m-%d %H:%M:%S +0000")
    values = {
        "appVersion": "1.0.0", "appBuild": "1", "isAutoPlay": "NO", "isAutoPlayOpenApp": "NO", "isVisibleWinEdit": "NO",
        "defaultStation": "Aaa", "defaultVolume": "0.700000", "enableMultipleSelection": "YES",
        "maxLenghtRadioName": "60", "setTimeOutLimit": "30.000000", "lastUpdateAppCheck": now,
        "lastUpdateDataCheck": now} | preferences
    with open(store / "Mertzan-Software.Sonavel.plist", "wb") as file:
        plistlib.dump(values, file)
    return folder


@contextmanager
def home(count, address="http://127.0.0.1:9/", **preferences):
    with tempfile.TemporaryDirectory(prefix="sonavel-bench-") as folder:
        yield write_home(folder, count, address, **preferences)


def player_command(home_folder, server):
    return [str(PLAYER), "--home", str(home_folder), "--data-server", server, "--probe", server]


def demo_stream(server):
    """The address of a stream that the demo server plays."""
    with urllib.request.urlopen(server + "app_data_files/testget.php?file=20161001000000_lr.rdb") as answer:
        encrypted = base64.b64decode(answer.read())
    text = subprocess.run(["openssl", "enc", "-d", "-aes-256-cbc", "-K", KEY.hex(), "-iv", "0" * 32], input=encrypted,
                          capture_output=True, check=True).stdout.decode()
    return [line.split(";")[1] for line in text.split("\r") if line and line != "radio;link"][0]


def first_painting(desk, *arguments):
    """Milliseconds until a new window is painted; see first_painting.cpp."""
    answer = subprocess.run([BUILD / "bench" / "first_painting", *arguments], env=desk.environment, check=True,
                            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, timeout=60)
    return float(answer.stdout)


def family(process):
    """The identifiers of a process and of the processes that it started."""
    children = Path(f"/proc/{process.pid}/task/{process.pid}/children").read_text(encoding="ascii").split()
    return [process.pid, *map(int, children)]


def memory(pids, *kinds):
    """The sum of those lines of the kernel's account, in MiB."""
    total = 0
    for pid in pids:
        for line in Path(f"/proc/{pid}/smaps_rollup").read_text(encoding="ascii").splitlines():
            if line.startswith(kinds):
                total += int(line.split()[1])
    return total / 1024


def proportional_memory(pids):
    """Proportional set size in MiB."""
    return memory(pids, "Pss:")


def private_memory(pid):
    """What the process alone uses, in MiB."""
    return memory([pid], "Private_Clean:", "Private_Dirty:")


def processor_time(pids):
    """User and system time in seconds."""
    ticks = 0
    for pid in pids:
        fields = Path(f"/proc/{pid}/stat").read_text(encoding="utf-8").rsplit(")", 1)[1].split()
        ticks += int(fields[11]) + int(fields[12])
    return ticks / 100


def row(what, values, unit):
    print(f"{what:44} median {statistics.median(values):8.1f} {unit}  "
          f"(min {min(values):.1f}, max {max(values):.1f}, {len(values)} runs)")
    return statistics.median(values)


def verdict(what, value, limit, unit="x"):
    print(f"{what:44} {value:8.2f} {unit}  to reach: <= {limit} {unit}  {'reached' if value <= limit else 'MISSED'}")
