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

    def start(self):
        process = self.desk.start([BUILD / "sonavel", "--home", self.home, "--data-server", self.address, "--probe",
                                   self.address], stderr=None, extra={"SONAVEL_AUDIO_OUTPUT": "null"})
        self.desk.activate("Sonavel")
        return self.accessibility.Program(process)

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
        self.desk.keys("ctrl+m", "alt+s")
        program.find(self.Role.MENU_ITEM, "About Sonavel")
        self.desk.keys("Return")
        program.find(self.Role.LABEL, "Version 0.1.0")
        self.desk.keys("Escape")
        self.wait_gone(program, self.Role.LABEL, "Version 0.1.0")
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
        again.process.terminate()
        again.process.wait(10)

    def choose(self, program, item):
        """From the first menu, with the keyboard."""
        self.desk.activate("Sonavel")
        self.desk.keys("alt+s")
        entry = program.find(self.Role.MENU_ITEM, item)
        wait_until(lambda: self.desk.keys("Down") or entry.has(self.State.FOCUSED), item)
        self.desk.keys("Return")

    def test_a_check_on_demand_tells_what_it_found(self):
        program = self.start()
        self.choose(program, "Check for Updates…")
        program.find(self.Role.LABEL, "You have the newest version.")
        self.desk.keys("Escape")
        self.wait_gone(program, self.Role.LABEL, "You have the newest version.")

        (self.home / "sonavel.ini").write_text(
            "n;Sonavel\rv;9.8.7\rb;6\ra;\rp;file:///etc/passwd\rn;<b>First</b>\\nSecond\rr;\rl;\r")
        self.choose(program, "Check for Updates…")
        program.find(self.Role.LABEL, "Sonavel has a new version")
        line = program.find(self.Role.LABEL, "Sonavel 9.8.7 (6) is available. You have 0.1.0 (1)")
        notes = program.find(self.Role.TEXT, "What is new")
        self.assertEqual(notes.text, "- <b>First</b>\n- Second\n")
        program.find(self.Role.PUSH_BUTTON, "Download").press()
        self.wait_gone(program, self.Role.LABEL, line.name)

        self.server.kill()
        self.choose(program, "Check for Updates…")
        program.find(self.Role.LABEL, "The server gave no usable answer. Try again later.")
        self.desk.keys("Return")

        self.desk.activate("Sonavel")
        self.desk.keys("alt+s", "Return")
        program.find(self.Role.LABEL, "Version 0.1.0")
        self.desk.keys("Escape")
        self.wait_gone(program, self.Role.LABEL, "Version 0.1.0")
        self.quit(program)

    def test_keys_and_media_keys_wait_while_a_server_is_silent(self):
        program = self.start()
        pop_up = program.find(self.Role.COMBO_BOX)
        volume = program.find(self.Role.SLIDER, "Volume")
        volume.focus()
        before = volume.value
        self.server.send_signal(signal.SIGSTOP)
        self.choose(program, "Check for Updates…")
        self.wait_gone(program, self.Role.MENU_ITEM, "Check for Updates…")
        self.desk.keys("Left")
        subprocess.run(["playerctl", "--player=sonavel", "next"], env=self.desk.environment, check=True, timeout=10)
        time.sleep(0.5)
        self.assertEqual((volume.value, pop_up.name), (before, "Choose a station"))
        self.assertFalse(program.shows(self.Role.LABEL, "You have the newest version."))

        self.server.send_signal(signal.SIGCONT)
        wait_until(lambda: volume.value < before, "the key to arrive")
        wait_until(lambda: pop_up.name != "Choose a station", "the media key to arrive")
        program.find(self.Role.LABEL, "You have the newest version.")
        self.desk.keys("Escape")
        self.quit(program)


if __name__ == "__main__":
    unittest.main(verbosity=2)
