#!/usr/bin/python3
"""The built player under a clock that stands still: on which start-ups it looks for a newer version. Takes the folder of the
built programs as its argument."""

import plistlib
import sys
import tempfile
import unittest
from pathlib import Path

import desktop
from desktop import wait_until
from small_server import SmallServer

BUILD = Path(sys.argv.pop(1))
CLOCK = next(Path("/usr/lib").glob("*/faketime/libfaketime.so.1"))

BERLIN = "CET-1CEST,M3.5.0,M10.5.0/3"

# The last check in UTC, the time of the start in the time zone, the zone, and whether a check is due.
STARTS = [
    ("2016-10-04 12:00:00 +0000", "2016-10-05 00:00:00", "UTC", True),
    ("2016-10-04 12:00:00 +0000", "2016-10-05 23:29:59", "UTC", True),
    ("2016-10-04 12:00:00 +0000", "2016-10-05 23:30:00", "UTC", False),
    ("2016-10-05 08:00:00 +0000", "2016-10-05 23:29:59", "UTC", False),
    ("2016-10-05 08:00:00 +0000", "2016-10-05 23:30:00", "UTC", True),
    ("2016-10-03 12:00:00 +0000", "2016-10-05 12:00:00", "UTC", False),
    # Half past midnight on the 5th where clocks are five and a half hours ahead.
    ("2016-10-04 19:00:00 +0000", "2016-10-06 12:00:00", "IST-5:30", True),
    ("2016-10-04 18:00:00 +0000", "2016-10-06 12:00:00", "IST-5:30", False),
    # The day on which clocks go back has 25 hours.
    ("2016-10-29 22:30:00 +0000", "2016-10-30 23:00:00", BERLIN, True),
    ("2016-10-29 21:30:00 +0000", "2016-10-30 23:00:00", BERLIN, False),
    ("2016-10-29 21:30:00 +0000", "2016-10-30 22:00:00", BERLIN, True),
]


class ClockTest(unittest.TestCase):
    def test_a_start_checks_for_a_newer_version_on_the_day_after_the_last_check(self):
        server = SmallServer()
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        with desktop.Desktop(accessibility=False, sound=False) as desk:
            for last_check, now, zone, is_due in STARTS:
                with self.subTest(last_check=last_check, now=now, zone=zone):
                    server.checks = 0
                    self.start(desk, server, last_check, now, zone)
                    self.assertEqual(server.checks, int(is_due))

    def start(self, desk, server, last_check, now, zone):
        """Until the main window is there: the check comes before it."""
        with tempfile.TemporaryDirectory(prefix="sonavel-home-") as home:
            folder = Path(home, "Library/Preferences")
            folder.mkdir(parents=True)
            with open(folder / "Mertzan-Software.Sonavel.plist", "wb") as file:
                plistlib.dump({"lastUpdateAppCheck": last_check}, file)
            process = desk.start(
                [BUILD / "sonavel", "--home", home, "--data-server", server.address, "--probe", server.address],
                stderr=None, extra={"LD_PRELOAD": str(CLOCK), "FAKETIME": now, "FAKETIME_DONT_FAKE_MONOTONIC": "1",
                                    "TZ": zone, "SONAVEL_AUDIO_OUTPUT": "null"})
            desk.window("Sonavel")
            process.kill()
            process.wait(10)
            wait_until(lambda: not desk.is_shown("Sonavel"), "the window to be gone")


if __name__ == "__main__":
    unittest.main(verbosity=2)
