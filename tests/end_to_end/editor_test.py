#!/usr/bin/python3
"""The station list window of the built player, driven with mouse, keyboard and the accessibility bus. After each operation
the list on disk, the table, the pop-up and the title are compared with what docs/architecture.md says is shown when. Takes
the folder of the built programs as its argument."""

import base64
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import desktop
from desktop import wait_until

BUILD = Path(sys.argv.pop(1))
KEY = b"A48958B191A1424E189DAB58F4695D6F"


def stored_list(home):
    """The station database under a home directory, as text."""
    encrypted = base64.b64decode((home / "Library/Preferences/radiolist.rdb").read_bytes(), validate=True)
    return subprocess.run(["openssl", "enc", "-d", "-aes-256-cbc", "-K", KEY.hex(), "-iv", "0" * 32], input=encrypted,
                          capture_output=True, check=True).stdout.decode()


def text_of(rows):
    return "".join(f"{name};{address}\r" for name, address in rows)


class EditorTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.desk = cls.enterClassContext(desktop.Desktop("1200x900", sound=False))
        os.environ.update(cls.desk.environment)
        import accessibility
        cls.Role = accessibility.Role
        cls.accessibility = accessibility

    def setUp(self):
        self.home = Path(self.enterContext(tempfile.TemporaryDirectory(prefix="sonavel-home-")))
        process = self.desk.start([BUILD / "sonavel", "--demo", "--home", self.home], stderr=None,
                                  extra={"SONAVEL_AUDIO_OUTPUT": "null"})
        self.program = self.accessibility.Program(process)
        self.addCleanup(self.end, process)
        self.desk.window("Sonavel")
        self.demo = [tuple(line.split(";")) for line in stored_list(self.home).split("\r")[:-1]]
        self.expected = {}

    def end(self, process):
        process.terminate()
        self.assertEqual(process.wait(10), 0)
        wait_until(lambda: not self.desk.is_shown("Sonavel"), "the window to be gone")

    # What is shown and stored.

    def table(self):
        return self.program.find(self.Role.TABLE)

    def shown(self):
        table = self.table()
        cells = table.children(self.Role.TABLE_CELL)
        rows = [(name.name, address.name) for name, address in zip(cells[::2], cells[1::2])]
        pop_up = self.program.find(self.Role.COMBO_BOX)
        return {
            "rows": rows,
            "selected": [row for row, cell in enumerate(cells[::2])
                         if cell.has(self.accessibility.Atspi.StateType.SELECTED)],
            "items": [item.name for item in pop_up.children(self.Role.LIST_ITEM)][1:],
            "chosen": pop_up.name,
            "title": self.desk.window_title("Station List.*"),
            "stored": stored_list(self.home),
        }

    def expect(self, **changes):
        """What is not named is as it was expected before."""
        self.expected |= changes
        try:
            wait_until(lambda: self.shown() == self.expected, "what is to be shown", 8)
        except TimeoutError:
            self.assertEqual(self.shown(), self.expected)

    def expect_list(self, rows, selected):
        """Everything shows and holds these stations."""
        self.expect(rows=rows, items=[name for name, _ in rows], stored=text_of(rows), selected=selected,
                    chosen="Choose a station" if rows else "No stations", title=f"Station List ({len(rows)})")

    def expect_in_preferences(self):
        """The pop-up of the preferences has the items of the main one. It cannot be seen while the list is shown."""
        self.desk.keys("Escape", "ctrl+e")
        self.wait_gone(self.Role.TABLE, "Station List")
        self.desk.activate("Sonavel")
        self.desk.keys("ctrl+comma")
        box = self.program.find(self.Role.DIALOG, "Preferences").children(self.Role.COMBO_BOX)[0]
        self.assertEqual([item.name for item in box.children(self.Role.LIST_ITEM)][1:], self.expected["items"])
        self.assertEqual(box.enabled, bool(self.expected["items"]))
        self.desk.keys("Escape")
        self.wait_gone(self.Role.DIALOG, "Preferences")
        self.desk.keys("ctrl+e")
        self.desk.activate("Station List.*")

    # What the user does.

    def open_list(self):
        self.program.find(self.Role.PUSH_BUTTON, "Station List…").press()
        self.desk.activate("Station List.*")
        self.expect_list(self.demo, [])

    def select(self, row, column=0):
        self.desk.click(self.cell(row, column))
        wait_until(lambda: self.shown()["selected"] == [row], f"row {row} to be selected")
        self.expected["selected"] = [row]

    def cell(self, row, column=0):
        return self.table().children(self.Role.TABLE_CELL)[2 * row + column]

    def fill_sheet(self, name, address):
        for field, text in (("Name", name), ("Address", address)):
            self.desk.click(self.program.find(self.Role.TEXT, field))
            self.desk.keys("ctrl+a", "Delete")
            self.desk.type(text)
        self.desk.keys("Return")
        self.wait_gone(self.Role.DIALOG, "Station")

    def answer(self, question, button):
        self.program.find(self.Role.LABEL, question)
        self.program.find(self.Role.PUSH_BUTTON, button).press()
        self.wait_gone(self.Role.LABEL, question)

    def edit_cell(self, text, ending):
        """Types into the cell that has the keyboard."""
        self.desk.keys("F2", "ctrl+a")
        self.desk.type(text)
        self.desk.keys(ending)

    def choose_file(self, key, panel, path):
        self.desk.keys(key)
        self.desk.window(panel)
        self.desk.activate(panel)
        if path is None:
            self.desk.keys("Escape")
        else:
            self.desk.type(str(path))
            self.desk.keys("Return")
        self.wait_gone(self.Role.FILE_CHOOSER, panel)
        self.wait_gone(self.Role.DIALOG, panel)

    def import_file(self, content, answer=None):
        path = self.home / "list.csv"
        if content is not None:
            path.write_bytes(content)
        self.choose_file("ctrl+i", "Import Stations", path if content is not None else None)
        if answer:
            self.answer("Replace the present stations by those in the file? “No” adds them to the list.", answer)

    def wait_gone(self, role, name):
        wait_until(lambda: not self.program.shows(role, name), f"{name} to be gone")

    # The operations.

    def test_stations_are_added_and_changed_in_the_sheet(self):
        self.open_list()
        self.desk.keys("ctrl+n")
        self.program.find(self.Role.DIALOG, "Station")
        self.fill_sheet("Alpine  Air;", "http://alpine.example/x")
        added = [("Alpine Air", "http://alpine.example/x")]
        self.expect_list(added + self.demo, [3])
        self.expect_in_preferences()

        self.program.find(self.Role.PUSH_BUTTON, "Add").press()
        self.fill_sheet("x", "short")
        self.expect()
        self.desk.keys("ctrl+n")
        self.program.find(self.Role.DIALOG, "Station")
        self.desk.keys("Escape")
        self.wait_gone(self.Role.DIALOG, "Station")
        self.expect()

        self.desk.click(self.cell(0), times=2)
        self.program.find(self.Role.PUSH_BUTTON, "Change")
        self.fill_sheet("Zephyr", "http://zephyr.example/")
        self.expect_list(self.demo + [("Zephyr", "http://zephyr.example/")], [3])
        self.expect_in_preferences()

    def test_cells_are_edited_in_place(self):
        self.open_list()
        self.select(0)
        rows = list(self.demo)
        self.edit_cell("Quiet; Harbour", "Return")
        rows[0] = ("Quiet Harbour", rows[0][1])
        self.expect(rows=rows, items=[name for name, _ in rows], stored=text_of(rows))
        self.select(1)
        self.select(0, column=1)
        self.edit_cell("http://quiet.example/", "Tab")
        rows[0] = ("Quiet Harbour", "http://quiet.example/")
        self.expect(rows=rows, stored=text_of(rows), selected=[1])
        self.expect_in_preferences()
        self.expected["title"] = "Station List (3)"

        self.edit_cell("dropped", "Escape")
        self.desk.keys("F2", "Return")
        self.expect()
        self.edit_cell("Typed when closed", "alt+F4")
        rows[1] = ("Typed when closed", rows[1][1])
        wait_until(lambda: stored_list(self.home) == text_of(rows), "the cell to be stored")

    def test_what_is_typed_in_a_cell_is_there_when_the_session_ends(self):
        self.open_list()
        self.select(0)
        self.edit_cell("Typed at the end", "Left")
        self.program.process.terminate()
        self.assertEqual(self.program.process.wait(10), 0)
        self.assertEqual(stored_list(self.home), text_of([("Typed at the end", self.demo[0][1]), *self.demo[1:]]))

    def test_stations_are_removed_after_a_question(self):
        self.open_list()
        name, other = self.demo[1][0], self.demo[0][0]
        self.select(0)
        self.desk.keys("Delete")
        self.answer(f"Remove the station “{other}”?", "No")
        self.expect()

        # Next chooses the first station, and again the second.
        self.desk.keys("ctrl+Right", "ctrl+Right", "ctrl+p")
        self.program.find(self.Role.PUSH_BUTTON, "Pause")
        self.expect(chosen=name)
        self.select(1)
        self.program.find(self.Role.PUSH_BUTTON, "Remove").press()
        self.answer(f"“{name}” is the chosen station. Stop it and remove it?", "Yes")
        self.expect_list([self.demo[0], self.demo[2]], [1])
        self.assertFalse(self.program.find(self.Role.PUSH_BUTTON, "Stop").enabled)

        self.desk.keys("ctrl+Right", "ctrl+p")
        self.expect(chosen=other)
        self.desk.keys("ctrl+a", "Delete")
        self.answer("Remove the 2 selected stations?", "Yes")
        self.expect_list([], [])
        self.expect_in_preferences()
        self.assertTrue(self.program.find(self.Role.PUSH_BUTTON, "Stop").enabled)

    def test_lists_are_imported_and_exported(self):
        self.open_list()
        self.import_file(None)
        self.expect()
        name = self.demo[0][0]
        self.import_file(f"radio;link\rNew;http://new/\r{name};http://twin/\rLast;http://last/".encode(), "No")
        self.answer("Some names in the file were already in the list. Those stations got a number after their name.",
                    "Continue")
        shown = self.demo + [("New", "http://new/"), (f"{name} (5)", "http://twin/")]
        self.expect(rows=shown, items=[row[0] for row in shown],
                    stored=text_of(shown + [("Last", "http://last/")]))
        self.expect_in_preferences()
        self.expect(title="Station List (6)")

        exported = self.home / "out.csv"
        self.choose_file("ctrl+shift+e", "Export Stations", exported)
        self.expect()
        self.assertEqual(exported.read_bytes().decode(), "radio;link\r" + self.expected["stored"])

        self.import_file(b"radio;link\rOnly;http://only/\r", "Yes")
        rows = [("Only", "http://only/")]
        self.expect(rows=rows, items=["Only"], stored=text_of(rows))
        self.program.find(self.Role.LABEL, "Stations imported: 1. The former list was kept as radiolist.before-import.rdb.")

        self.import_file(b"\xff\xfe no text", "Yes")
        self.expect(rows=[("", "")], stored="")
        self.select(0)
        self.desk.keys("Return", "Delete")
        self.assertFalse(self.program.find(self.Role.PUSH_BUTTON, "Edit").enabled)
        self.desk.keys("ctrl+Right")
        self.expect()

        self.import_file(exported.read_bytes())
        shown.append(("Last", "http://last/"))
        self.expect(rows=shown, items=[row[0] for row in shown], selected=[], stored=text_of(shown))
        self.program.find(self.Role.PUSH_BUTTON, "Station List…").press()
        self.expect(title="Station List (6)")

    def test_find_selects_and_the_menu_closes(self):
        self.open_list()
        self.desk.keys("ctrl+f")
        self.desk.type(self.demo[2][0][1:5].upper())
        self.expect(selected=[2])
        self.desk.keys("ctrl+a")
        self.desk.type("/demo/")
        self.expect(selected=[2])
        self.desk.keys("Return")
        self.expect(selected=[0])
        self.desk.keys("shift+Return")
        self.expect(selected=[2])
        self.desk.keys("Escape", "ctrl+e")
        self.wait_gone(self.Role.TABLE, None)


if __name__ == "__main__":
    unittest.main(verbosity=2)
