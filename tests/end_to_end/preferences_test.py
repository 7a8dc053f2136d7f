#!/usr/bin/python3
"""Preferences, the check for a newer version, menus and About in the built player. Takes the folder of the built programs as
its argument."""

import os
import plistlib
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

import desktop
from desktop import wait_until

BUILD = Path(sys.argv.pop(1))


class PreferencesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desk = cls.enterClassContext(desktop.Desktop(sound=False))
        os.environ.update(cls.desk.environment)
        import accessibility
        cls.Role = accessibility.Role
        cls.State = accessibility.Atspi.StateType
        cls.accessibility = accessibility

    def setUp(self):
        self.home = Path(self.enterContext(tempfile.TemporaryDirectory(prefix="sonavel-home-")))
        self.server = self.desk.start([BUILD / "sonavel-data-server", "--demo", "--directory", self.home],
                                      stdout=subprocess.PIPE, text=True)
        self.addCleanup(self.server.stdout.close)
        self.address = self.server.stdout.readline().split()[-1]

    def start(self, *options, **extra):
        program = self.start_as_it_comes(*options, **extra)
        self.desk.activate("Sonavel")
        return program

    def start_as_it_comes(self, *options, **extra):
        """With a web browser that writes down what it is to open."""
        browser = self.home / "bin/xdg-open"
        browser.parent.mkdir(exist_ok=True)
        browser.write_text(f"#!/bin/sh\necho \"$@\" >>'{self.home}/opened'\n")
        browser.chmod(0o755)
        options = options or ("--data-server", self.address, "--probe", self.address)
        process = self.desk.start([BUILD / "sonavel", "--home", self.home, *options], stderr=None, extra={
            "SONAVEL_AUDIO_OUTPUT": "null", "PATH": f"{browser.parent}:{os.environ['PATH']}", **extra})
        return self.accessibility.Program(process)

    def geometry(self):
        return subprocess.run(["xdotool", "getwindowgeometry", str(self.desk.window("Sonavel"))],
                              env=self.desk.environment, capture_output=True, text=True, check=True).stdout

    def windows_in_order(self):
        """The windows' identifiers, the front one last."""
        listed = subprocess.run(["xprop", "-root", "_NET_CLIENT_LIST_STACKING"], env=self.desk.environment,
                                capture_output=True, text=True, check=True).stdout
        return [int(window, 16) for window in listed.partition("#")[2].split(",")]

    def quit(self, program):
        self.desk.activate("Sonavel")
        self.desk.keys("ctrl+q")
        program.find(self.Role.PUSH_BUTTON, "Yes").press()
        self.assertEqual(program.process.wait(10), 0)

    def stored(self):
        with open(self.home / "Library/Preferences/Mertzan-Software.Sonavel.plist", "rb") as file:
            return plistlib.load(file)

    def wait_gone(self, program, role, name):
        wait_until(lambda: not program.shows(role, name), f"{name} to be gone")

    def toggle(self, program, name):
        box = program.find(self.Role.CHECK_BOX, name)
        was_on = box.has(self.State.CHECKED)
        box.node.do_action(0)
        wait_until(lambda: box.has(self.State.CHECKED) != was_on, f"{name} to change")

    def test_what_the_user_sets_holds_at_the_next_start(self):
        program = self.start()
        self.desk.keys("ctrl+comma")
        program.find(self.Role.DIALOG, "Preferences")
        self.toggle(program, "Play the default station when Sonavel starts")
        self.toggle(program, "Play a station as soon as it is chosen")
        program.find(self.Role.SLIDER, "Default volume").value = 25
        box = program.find(self.Role.DIALOG, "Preferences").children(self.Role.COMBO_BOX)[0]
        self.desk.click(box)
        self.desk.keys("Down", "Return")
        station = wait_until(lambda: box.name != "Choose a station" and box.name, "the default station")
        volume = program.find(self.Role.SLIDER, "Volume")
        self.desk.keys("ctrl+m")
        wait_until(lambda: not volume.enabled, "the sound to be muted beside the sheet")
        self.assertTrue(program.find(None, "Mute").has(self.State.CHECKED))
        self.desk.keys("ctrl+m", "alt+s")
        program.find(self.Role.MENU_ITEM, "About Sonavel")
        self.desk.keys("Return")
        program.find(self.Role.LABEL, "Version 1.0.0")
        self.desk.keys("Escape")
        self.wait_gone(program, self.Role.LABEL, "Version 1.0.0")
        self.desk.activate("Preferences")
        self.desk.keys("Escape")
        self.wait_gone(program, self.Role.DIALOG, "Preferences")
        self.assertEqual(self.stored()["isAutoPlay"], "NO")
        self.quit(program)
        stored = self.stored()
        self.assertEqual([stored[key] for key in ("isAutoPlay", "isAutoPlayOpenApp", "defaultStation", "defaultVolume")],
                         ["YES", "YES", station, "0.250000"])

        again = self.start()
        again.find(self.Role.PUSH_BUTTON, "Pause")
        self.assertEqual(again.find(self.Role.COMBO_BOX).name, station)
        self.assertEqual(again.find(self.Role.SLIDER, "Volume").value, 25)
        self.desk.keys("ctrl+comma")
        self.toggle(again, "Play a station as soon as it is chosen")
        again.process.terminate()
        self.assertEqual(again.process.wait(10), 0)
        self.assertEqual(self.stored()["isAutoPlay"], "NO")

    def test_the_main_window_comes_back_where_it_was(self):
        program = self.start()
        window = str(self.desk.window("Sonavel"))
        subprocess.run(["xdotool", "windowsize", "--sync", window, "520", "200", "windowmove", "--sync", window, "230",
                        "170"], env=self.desk.environment, check=True)
        place = self.geometry()
        self.quit(program)
        program = self.start()
        wait_until(lambda: self.geometry().splitlines()[1:] == place.splitlines()[1:], "the window in its place")
        self.quit(program)

    def test_a_restored_list_lies_behind_the_main_window_and_ctrl_w_closes_the_active_one(self):
        program = self.start()
        self.desk.keys("ctrl+e")
        self.desk.activate("Station List.*")
        subprocess.run(["xdotool", "windowmove", "--sync", str(self.desk.window("Station List.*")), "1", "1"],
                       env=self.desk.environment, check=True)
        self.quit(program)
        program = self.start_as_it_comes()
        self.desk.window("Station List.*")
        wait_until(lambda: self.windows_in_order()[-1] == self.desk.window("Sonavel"), "the main window in front")
        self.desk.activate("Station List.*")
        self.desk.keys("ctrl+w")
        wait_until(lambda: not self.desk.is_shown("Station List.*"), "the list to be closed")
        self.desk.activate("Sonavel")
        self.desk.keys("ctrl+w")
        program.find(self.Role.PUSH_BUTTON, "Yes").press()
        self.assertEqual(program.process.wait(10), 0)

    def test_a_mirrored_and_enlarged_window_begins_at_the_right(self):
        program = self.start("--demo", "-reverse", QT_SCALE_FACTOR="2")
        x = [program.find(self.Role.PUSH_BUTTON, name).center[0] for name in ("Play", "Stop", "Station List…")]
        self.assertEqual(x, sorted(x, reverse=True))
        program.process.terminate()
        self.assertEqual(program.process.wait(10), 0)

    def test_the_demo_offers_a_version_whose_page_opens_in_the_browser(self):
        program = self.start("--demo", "--demo-update")
        program.find(self.Role.LABEL, "Sonavel has a new version")
        program.find(self.Role.PUSH_BUTTON, "Download").press()
        opened = self.home / "opened"
        wait_until(lambda: opened.exists() and opened.read_text().endswith("\n"), "the browser")
        self.assertRegex(opened.read_text(), "^https?://[^ ]+\n$")
        program.process.terminate()
        self.assertEqual(program.process.wait(10), 0)

    def test_items_of_the_menus_follow_the_window(self):
        program = self.start()
        self.desk.keys("ctrl+e")
        self.desk.activate("Station List.*")
        names = ["Add…", "Edit…", "Remove…", "Import…", "Export…"]
        for key, enabled in ((None, [True, False, False, True, True]), ("ctrl+a", [True, False, True, True, True])):
            self.desk.keys(*filter(None, [key, "alt+t"]))
            self.assertEqual([program.find(self.Role.MENU_ITEM, name).enabled for name in names], enabled)
            self.desk.keys("Escape", "Escape")
        self.desk.activate("Sonavel")
        self.desk.keys("alt+t")
        self.assertEqual([program.find(self.Role.MENU_ITEM, name).enabled for name in names], [False] * 5)
        self.desk.keys("Escape", "Escape", "alt+s")
        names = ["About Sonavel", "Check for Updates…", "Preferences…", "Quit"]
        self.assertEqual([program.find(self.Role.MENU_ITEM, name).enabled for name in names], [True, False, False, True])
        self.desk.keys("Escape", "Escape")
        self.quit(program)

    def test_each_window_opens_menus_of_its_own(self):
        program = self.start()
        self.desk.keys("ctrl+e")
        for title, place in (("Sonavel", (20, 40)), ("Station List.*", (400, 300))):
            subprocess.run(["xdotool", "windowmove", "--sync", str(self.desk.window(title)), *map(str, place)],
                           env=self.desk.environment, check=True)
        frames = [program.find(self.Role.FRAME, self.desk.window_title(title)) for title in ("Sonavel", "Station List.*")]
        for frame in 2 * frames:
            bar = frame.children(self.Role.MENU_BAR)[0]
            menu = self.accessibility.Control(bar.node.get_child_at_index(1))
            for opening in (lambda: menu.node.do_action(0), lambda: self.desk.click(menu)):
                opening()
                item = program.find(self.Role.MENU_ITEM, "Stop")
                x, y = (there - here for there, here in zip(item.center, frame.center))
                self.assertTrue(abs(x) < 250 and abs(y) < 250, (frame.name, x, y))
                self.desk.keys("Escape", "Escape")
                self.wait_gone(program, self.Role.MENU_ITEM, "Stop")
        self.quit(program)

    def check_for_updates(self, program):
        """From the first menu, with the keyboard."""
        self.desk.activate("Sonavel")
        self.desk.keys("alt+s")
        program.find(self.Role.MENU_ITEM, "Check for Updates…")
        self.desk.keys("c")

    def test_a_check_on_demand_tells_what_it_found(self):
        program = self.start()
        self.check_for_updates(program)
        program.find(self.Role.LABEL, "You have the newest version, 1.0.0 (1).")
        self.desk.keys("Escape")
        self.wait_gone(program, self.Role.LABEL, "You have the newest version, 1.0.0 (1).")

        (self.home / "sonavel.ini").write_text(
            "n;Sonavel\rv;9.8.7\rb;6\ra;\rp;file:///etc/passwd\rn;<b>First</b>\\nSecond\rr;\rl;\r")
        self.check_for_updates(program)
        program.find(self.Role.LABEL, "Sonavel has a new version")
        line = program.find(self.Role.LABEL, "Sonavel 9.8.7 (6) is available. You have 1.0.0 (1)")
        notes = program.find(self.Role.TEXT, "What is new")
        self.assertEqual(notes.text, "- <b>First</b>\n- Second\n")
        program.find(self.Role.PUSH_BUTTON, "Download").press()
        self.wait_gone(program, self.Role.LABEL, line.name)
        self.assertFalse((self.home / "opened").exists())

        self.server.kill()
        self.check_for_updates(program)
        program.find(self.Role.LABEL, "The server gave no usable answer. Try again later.")
        self.desk.keys("Return")

        self.desk.activate("Sonavel")
        self.desk.keys("alt+s", "Return")
        for line in ("Sonavel", "Version 1.0.0", "Free software under the MIT license", "© 2026 The Sonavel developers"):
            program.find(self.Role.LABEL, line)
        self.desk.keys("Escape")
        self.wait_gone(program, self.Role.LABEL, "Version 1.0.0")
        self.quit(program)

    def test_a_start_names_the_server_that_it_waits_for(self):
        self.server.send_signal(signal.SIGSTOP)
        program = self.start_as_it_comes()
        program.find(self.Role.LABEL, "Waiting for 127.0.0.1…")
        self.server.send_signal(signal.SIGCONT)
        self.desk.activate("Sonavel")
        program.find(self.Role.COMBO_BOX)
        self.assertFalse(program.shows(self.Role.LABEL, "Waiting for 127.0.0.1…"))
        self.quit(program)

    def test_keys_wait_while_a_server_is_silent_and_old_media_keys_are_dropped(self):
        program = self.start()
        pop_up = program.find(self.Role.COMBO_BOX)
        volume = program.find(self.Role.SLIDER, "Volume")
        volume.focus()
        before = volume.value
        self.server.send_signal(signal.SIGSTOP)
        self.check_for_updates(program)
        self.wait_gone(program, self.Role.MENU_ITEM, "Check for Updates…")
        self.desk.keys("Left")
        subprocess.run(["playerctl", "--player=sonavel", "next"], env=self.desk.environment, check=True, timeout=10)
        time.sleep(2.5)
        self.assertEqual((volume.value, pop_up.name), (before, "Choose a station"))
        self.assertFalse(program.shows(self.Role.LABEL, "You have the newest version, 1.0.0 (1)."))

        self.server.send_signal(signal.SIGCONT)
        wait_until(lambda: volume.value < before, "the key to arrive")
        program.find(self.Role.LABEL, "You have the newest version, 1.0.0 (1).")
        self.desk.keys("Escape")
        self.assertEqual(pop_up.name, "Choose a station")
        self.quit(program)


if __name__ == "__main__":
    unittest.main(verbosity=2)
