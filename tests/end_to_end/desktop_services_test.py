#!/usr/bin/python3
"""The built player among the desktop's services: media keys, a second start, sleep and network. Takes the folder of the
built programs as its argument."""

import json
import plistlib
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

import dbus
import desktop
from desktop import wait_until
from small_server import SmallServer

BUILD = Path(sys.argv.pop(1))

MOCK = "org.freedesktop.DBus.Mock"
PORTAL = ("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings")


class DesktopServicesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desk = cls.enterClassContext(desktop.Desktop(accessibility=False))

    def setUp(self):
        self.home = self.enterContext(tempfile.TemporaryDirectory(prefix="sonavel-home-"))

    def start(self, *options, **extra):
        process = self.desk.start([BUILD / "sonavel", "--home", self.home, *options], stderr=None, extra=extra)
        self.desk.window("Sonavel")
        wait_until(lambda: self.media("status") == "Stopped", "the player on the message bus")
        self.addCleanup(self.end, process)
        return process

    def end(self, process):
        process.terminate()
        self.assertEqual(process.wait(10), 0)
        wait_until(lambda: not self.desk.is_shown("Sonavel"), "the window to be gone")

    def small_server(self):
        server = SmallServer()
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        self.addCleanup(server.answering.set)
        return server

    def media(self, *command):
        return subprocess.run(["playerctl", "--player=sonavel", *command], env=self.desk.environment,
                              capture_output=True, text=True, check=False).stdout.strip()

    def follow(self, *what):
        """What a media key's program hears of it, line by line."""
        process = self.desk.start(["playerctl", "--player=sonavel", "--follow", *what], stdout=subprocess.PIPE, text=True)
        self.addCleanup(process.stdout.close)
        return process.stdout

    def expect(self, answer, *command):
        wait_until(lambda: self.media(*command) == answer, f"{answer!r} of {command}")

    def test_media_keys_do_what_the_buttons_do_and_hear_what_changes(self):
        self.start("--demo")
        status, volume, title = (self.follow(*what) for what in (("status",), ("volume",), ("metadata", "xesam:title")))
        self.assertEqual(status.readline().strip(), "Stopped")
        self.assertEqual(float(volume.readline()), float(self.media("volume")))
        self.media("play")
        self.expect("Stopped", "status")
        self.media("next")
        self.media("play")
        self.expect("Playing", "status")
        self.assertTrue(any(" - " in line for line in title))
        station = self.media("metadata", "xesam:album")
        self.assertTrue(station)
        self.assertIn("/demo/", self.media("metadata", "xesam:url"))
        self.media("play-pause")
        self.expect("Paused", "status")
        self.media("volume", "0.25")
        self.expect("0.250000", "volume")
        self.assertEqual(float(volume.readline()), 0.25)
        self.media("volume", "2")
        self.expect("1.000000", "volume")
        self.media("previous")
        self.expect("Stopped", "status")
        self.media("play")
        self.expect("Playing", "status")
        last = self.media("metadata", "xesam:url")
        self.media("stop")
        self.expect("Stopped", "status")
        for step in ("previous", "next"):
            self.media(step)
        self.media("play")
        self.expect("Playing", "status")
        self.assertEqual(self.media("metadata", "xesam:url"), last)
        self.media("next")
        self.media("play")
        wait_until(lambda: self.media("metadata", "xesam:album") == station, "the first station after the last")
        self.assertEqual([status.readline().strip() for _ in range(2)], ["Playing", "Paused"])

    def test_a_step_from_one_playing_station_to_the_next_is_no_stop(self):
        preferences = Path(self.home, "Library/Preferences/Mertzan-Software.Sonavel.plist")
        preferences.parent.mkdir(parents=True)
        preferences.write_bytes(plistlib.dumps({"isAutoPlay": "YES"}))
        self.start("--demo")
        status = self.follow("status")
        self.assertEqual(status.readline().strip(), "Stopped")
        for _ in range(3):
            address = self.media("metadata", "xesam:url")
            self.media("next")
            wait_until(lambda: self.media("metadata", "xesam:url") != address, "the next station")
            wait_until(lambda: " - " in self.media("metadata", "xesam:title"), "the stream's title")
        self.media("stop")
        self.assertEqual([status.readline().strip() for _ in range(2)], ["Playing", "Stopped"])

    def test_a_second_start_shows_the_window_of_the_first_and_ends(self):
        self.start("--demo")
        window = self.desk.window("Sonavel")
        subprocess.run(["xdotool", "windowminimize", "--sync", str(window)], env=self.desk.environment, check=True)
        second = self.desk.start([BUILD / "sonavel", "--demo", "--home", self.home + "/."])
        self.assertEqual(second.wait(20), 0)
        self.desk.window("Sonavel")

    def test_a_second_start_made_while_the_first_waits_for_its_server_is_one_start(self):
        server = self.small_server()
        server.answering.clear()
        command = [BUILD / "sonavel", "--home", self.home, "--data-server", server.address, "--probe", server.address]
        first = self.desk.start(command)
        wait_until(lambda: server.requests, "the first start's request")
        second = self.desk.start(command)
        self.assertEqual(second.wait(20), 0)
        self.assertFalse(self.desk.is_shown("Sonavel"))
        server.answering.set()
        self.desk.window("Sonavel")
        wait_until(lambda: self.media("status") == "Stopped", "the player on the message bus")
        self.end(first)

    def test_a_session_that_ends_during_the_start_leaves_the_preferences_alone(self):
        preferences = Path(self.home, "Library/Preferences/Mertzan-Software.Sonavel.plist")
        preferences.parent.mkdir(parents=True)
        before = plistlib.dumps({"isAutoPlay": "YES", "defaultVolume": "0.250000"})
        preferences.write_bytes(before)
        server = self.small_server()
        server.answering.clear()
        player = self.desk.start([BUILD / "sonavel", "--home", self.home, "--data-server", server.address, "--probe",
                                  server.address])
        wait_until(lambda: server.requests, "the start's request")
        player.terminate()
        self.assertEqual(player.wait(10), 0)
        self.assertEqual(preferences.read_bytes(), before)

    def test_a_media_key_pauses_beside_a_question_and_nothing_else_is_done_after_it_and_all_work_beside_a_sheet(self):
        self.start("--demo")
        self.media("next")
        self.media("play")
        self.expect("Playing", "status")
        volume = self.media("volume")
        self.desk.activate("Sonavel")
        bus = dbus.bus.BusConnection(self.desk.environment["DBUS_SESSION_BUS_ADDRESS"])
        player = bus.get_object("org.mpris.MediaPlayer2.sonavel", "/org/mpris/MediaPlayer2")
        player.Quit(dbus_interface="org.mpris.MediaPlayer2", timeout=10)
        wait_until(lambda: self.desk.number_of_windows("Sonavel") == 2, "the question")
        self.media("pause")
        self.expect("Paused", "status")
        self.media("volume", "0.25")
        self.desk.keys("Escape")
        wait_until(lambda: self.desk.number_of_windows("Sonavel") == 1, "the question to be gone")
        self.media("play")
        self.expect("Playing", "status")
        self.assertEqual(self.media("volume"), volume)
        self.media("pause")

        self.desk.activate("Sonavel")
        self.desk.keys("ctrl+comma")
        self.desk.window("Preferences")
        self.media("play")
        self.expect("Playing", "status")

    def test_the_windows_take_the_colours_and_the_contrast_that_the_desktop_asks_for(self):
        portal = self.mock_service(self.desk.environment["DBUS_SESSION_BUS_ADDRESS"], *PORTAL)
        portal.AddMethod(PORTAL[2], "Read", "ss", "v", "ret = dbus.UInt32(args[1] == 'color-scheme')",
                         dbus_interface=MOCK)
        self.start("--demo")
        wait_until(lambda: self.ground_of_window() == "#23262B", "the dark window")
        for key, value, ground in (("contrast", 1, "#000000"), ("color-scheme", 2, "#FFFFFF"), ("contrast", 0, "#F3F4F6")):
            portal.EmitSignal("", "SettingChanged", "ssv", ["org.freedesktop.appearance", key, dbus.UInt32(value)],
                              dbus_interface=MOCK)
            wait_until(lambda: self.ground_of_window() == ground, f"{key} {value}")
        for file in Path(self.desk.environment["HOME"]).rglob("windows.ini"):
            self.assertNotIn("appearance=", file.read_text(), "the demo leaves nothing behind")

    def ground_of_window(self):
        """The colour of the main window's lower left corner."""
        picture = ["import", "-window", str(self.desk.window("Sonavel")), "-gravity", "SouthWest", "-crop", "1x1+2+2",
                   "-depth", "8", "txt:-"]
        return subprocess.run(picture, env=self.desk.environment, capture_output=True, text=True,
                              check=True).stdout.split()[-2]

    def test_the_sound_mixer_shows_the_program_and_the_station(self):
        name = "${path} --ao=null Radio"
        server = self.desk.start([BUILD / "sonavel-data-server", "--demo", "--port", "0"], stdout=subprocess.PIPE,
                                 text=True)
        with server.stdout:
            address = server.stdout.readline().split()[-1]
        database = Path(self.home, "Library/Preferences/radiolist.csv")
        database.parent.mkdir(parents=True)
        database.write_text(f"{name};{address}demo/orchard.mp3\r")
        self.start("--data-server", self.small_server().address, "--probe", address)
        self.media("next")
        self.media("play")
        wait_until(lambda: self.mixer_entry() == ("Sonavel", name), "the station in the sound mixer")

    def mixer_entry(self):
        """The application and the stream as sound mixers show them; nothing while there is none."""
        listed = subprocess.run(["pactl", "--format=json", "list", "sink-inputs"], env=self.desk.environment,
                                capture_output=True, text=True, check=True)
        for entry in json.loads(listed.stdout or "[]"):
            return entry["properties"]["application.name"], entry["properties"]["media.name"]
        return None

    def test_a_stream_is_asked_for_again_at_once_after_sleep_and_when_the_network_is_back(self):
        server = self.small_server()
        database = Path(self.home, "Library/Preferences/radiolist.csv")
        database.parent.mkdir(parents=True)
        database.write_text(f"Gone;{server.address}gone\r")
        bus = self.desk.start(["dbus-daemon", "--session", "--nofork", "--print-address"], stdout=subprocess.PIPE,
                              text=True)
        with bus.stdout:
            address = bus.stdout.readline().strip()
        sleep, network = (self.mock_service(address, *service) for service in (
            ("org.freedesktop.login1", "/org/freedesktop/login1", "org.freedesktop.login1.Manager"),
            ("org.freedesktop.NetworkManager", "/org/freedesktop/NetworkManager", "org.freedesktop.NetworkManager")))
        self.start("--data-server", server.address, "--probe", server.address, DBUS_SYSTEM_BUS_ADDRESS=address)

        self.media("next")
        self.media("play")
        for service, name, signature, before, after in ((sleep, "PrepareForSleep", "b", True, False),
                                                        (network, "StateChanged", "u", 20, 70)):
            attempts = server.attempts
            # The fourth attempt fails; the fifth would follow 8 s later.
            wait_until(lambda: server.attempts >= attempts + 4, "attempts at growing distances", 40)
            attempts = server.attempts
            service.EmitSignal("", name, signature, [before], dbus_interface=MOCK)
            time.sleep(1)
            self.assertEqual(server.attempts, attempts)
            service.EmitSignal("", name, signature, [after], dbus_interface=MOCK)
            wait_until(lambda: server.attempts > attempts, "an attempt ahead of its time", 4)

    def mock_service(self, bus_address, name, path, interface):
        self.desk.start([sys.executable, "-m", "dbusmock", name, path, interface],
                        extra={"DBUS_SESSION_BUS_ADDRESS": bus_address})
        bus = dbus.bus.BusConnection(bus_address)
        wait_until(lambda: bus.name_has_owner(name), name)
        return bus.get_object(name, path)


if __name__ == "__main__":
    unittest.main(verbosity=2)
