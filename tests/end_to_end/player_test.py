#!/usr/bin/python3
"""The built player as its user meets it: a first start, a station chosen and heard, the question on quitting, and the
list found on disk at the next start. Takes the folder of the built programs as its argument."""

import base64
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import desktop
from desktop import loudness, wait_until

BUILD = Path(sys.argv.pop(1))
KEY = b"A48958B191A1424E189DAB58F4695D6F"


def stored_stations(home):
    """The names in the station database under a home directory."""
    encrypted = base64.b64decode((home / "Library/Preferences/radiolist.rdb").read_bytes(), validate=True)
    text = subprocess.run(["openssl", "enc", "-d", "-aes-256-cbc", "-K", KEY.hex(), "-iv", "0" * 32], input=encrypted,
                          capture_output=True, check=True).stdout.decode()
    return [line.split(";")[0] for line in text.split("\r")[:-1]]


class PlayerTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desk = cls.enterClassContext(desktop.Desktop())
        cls.home = Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="sonavel-home-")))
        os.environ.update(cls.desk.environment)
        import accessibility
        cls.accessibility = accessibility

    def start(self, *options):
        process = self.desk.start([BUILD / "sonavel", "--home", self.home, *options], stderr=None)
        return self.accessibility.Program(process)

    def choose_first_station(self, program):
        """Opens the pop-up with the keyboard and takes the item after the placeholder; gives its name."""
        self.desk.activate("Sonavel")
        pop_up = program.find(self.accessibility.Role.COMBO_BOX)
        pop_up.focus()
        self.desk.keys("space")
        wait_until(lambda: not pop_up.has(self.accessibility.Atspi.StateType.COLLAPSED)
                   or program.shows(self.accessibility.Role.LIST, None), "the opened list")
        self.desk.keys("Down", "Return")
        return wait_until(lambda: pop_up.name != "Choose a station" and pop_up.name, "the chosen station")

    def window_class(self):
        return subprocess.run(["xprop", "-id", str(self.desk.window("Sonavel")), "WM_CLASS"], check=True,
                              env=self.desk.environment, capture_output=True, text=True).stdout

    def quit_through_the_question(self, program):
        self.desk.activate("Sonavel")
        self.desk.keys("alt+F4")
        program.find(self.accessibility.Role.PUSH_BUTTON, "Yes").press()
        self.assertEqual(program.process.wait(10), 0)

    def test_a_station_is_chosen_and_heard_and_the_list_is_there_again_at_the_next_start(self):
        button = self.accessibility.Role.PUSH_BUTTON
        program = self.start("--demo")
        play = program.find(button, "Play")
        self.assertFalse(play.enabled)
        self.assertFalse(program.find(button, "Stop").enabled)
        self.assertIn('= "sonavel", "sonavel"', self.window_class(), "which the desktop finds the desktop entry by")
        name = self.choose_first_station(program)

        with self.desk.record() as recording:
            self.assertEqual(loudness(recording.read(0.3)), 0)
            play.press()
            program.find(button, "Pause")
            wait_until(lambda: loudness(recording.read(0.2)) > 0.001, "the sound")
            playing = program.find(self.accessibility.Role.LABEL, description="Now playing")
            wait_until(lambda: " – " in playing.name or " - " in playing.name, "the title")
            program.find(button, "Stop").press()
            wait_until(lambda: loudness(recording.read(0.2)) == 0, "the silence")
        self.assertFalse(program.find(button, "Stop").enabled)
        self.quit_through_the_question(program)

        names = stored_stations(self.home)
        self.assertIn(name, names)
        self.assertTrue((self.home / "Library/Preferences/Mertzan-Software.Sonavel.plist").exists())

        again = self.start("--demo")
        self.assertEqual(self.choose_first_station(again), names[0])
        self.assertEqual(stored_stations(self.home), names)
        self.quit_through_the_question(again)


if __name__ == "__main__":
    unittest.main(verbosity=2)
