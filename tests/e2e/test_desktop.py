# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Uses the built program as a user does, and looks at the files it leaves.

    test_desktop.py PROGRAM [TEST...]
"""

import os
import pathlib
import struct
import subprocess
import sys
import tempfile
import time
import unittest

from desktop import Desktop

PROGRAM = sys.argv.pop(1)
VERSION = "Version " + subprocess.run([PROGRAM, "--version"], capture_output=True, text=True, check=True).stdout.split()[1]
EXAMPLES = pathlib.Path(__file__).resolve().parents[2] / "examples"


def text(value, width):
    return value.encode("cp1252").ljust(width)


def user_settings(name="Ida Lund", folder=""):
    """The bytes of a complete user.usr."""
    others = ["County Extension Service", "4 Court Square", "Alder Creek, XX 00000", "555-0100", "ida@extension.example"]
    return b"".join(text(field, 50) for field in [name, *others, folder]) + b"\xff\xff"


def wait_for_a_calm_second():
    """The pause of the start-up never ends when it begins at second 58."""
    while time.localtime().tm_sec >= 50:
        time.sleep(0.2)


class DesktopTest(unittest.TestCase):
    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.addCleanup(self.temporary.cleanup)
        self.folder = pathlib.Path(self.temporary.name)
        self.settings = self.folder / "user.usr"
        self.settings.write_bytes(user_settings(folder=str(self.folder)))

    def program(self, *arguments, under=()):
        wait_for_a_calm_second()
        self.addCleanup(desktop.end)
        desktop.open([*under, PROGRAM, "--program-dir", str(self.folder), *map(str, arguments)])

    def test_a_session_with_a_center_pivot_test(self):
        new, copy = self.folder / "new.cpd", self.folder / "copy.cpd"
        self.program()
        desktop.wait_for_text("Open or Create New Data File to Begin")
        desktop.choose("File", "New Client")
        desktop.find("Create New Data File - Center Pivot System")
        desktop.type_into("File name:", "new\n")
        desktop.wait_for_text("File: new.cpd")
        record = new.read_bytes()
        self.assertEqual(len(record), 9002)
        self.assertIn(b"Choose Soil Type", record)

        desktop.choose("File", "Save As (Current Information)")
        desktop.find("Save Center Pivot Data As - Enter File Name")
        desktop.type_into("File name:", "copy\n")
        desktop.wait_for_text("File: copy.cpd")
        self.assertEqual(copy.read_bytes(), record)

        desktop.choose("File", "Close Current Client")
        desktop.wait_for_text("No File Open")

        desktop.press("Open Existing Data File")
        desktop.find("Open Center Pivot Data")
        desktop.type_into("File name:", "new.cpd\n")
        desktop.wait_for_text("File: new.cpd")

        desktop.choose("Window", "Data Entry")
        desktop.wait_for_text("The data window is not part of this version yet.")
        desktop.press("OK")
        desktop.choose("Help", "About ORVEL")
        desktop.wait_for_text(VERSION)
        desktop.press("OK")
        desktop.keys("ctrl+q")
        self.assertEqual(desktop.status(), 0)
        self.assertEqual(new.read_bytes(), record)

    def test_an_open_test_is_exported_and_saved(self):
        for example, beginning in [("pivot-1978.cpd", b"1,185,0.56\r\n2,207.5,0.64\r\n"),
                                   ("solid-set-1997.ssd", b"1,1,0.57\r\n1,2,0.69\r\n")]:
            with self.subTest(example):
                test, summary = self.folder / example, self.folder / "summary.txt"
                test.write_bytes((EXAMPLES / example).read_bytes())
                self.program(test)
                desktop.wait_for_text("File: " + example)
                desktop.choose("File", "Export Summary")
                desktop.type_into("File name:", "summary.txt\n")
                desktop.wait_until_gone("File name:")
                self.assertEqual(summary.read_bytes()[:len(beginning)], beginning)
                self.assertEqual(summary.read_bytes()[-4:], b"\r\n\r\n")
                summary.unlink()
                test.unlink()
                desktop.choose("File", "Save Current Information")
                desktop.keys("ctrl+q")
                self.assertEqual(desktop.status(), 0)
                # kept: a solid-set test is not saved here.
                self.assertEqual(test.exists(), test.suffix == ".cpd")

    def test_without_a_display_there_is_one_line(self):
        for change in [{"DISPLAY": ""}, {"DISPLAY": ":9999"}, {"QT_QPA_PLATFORM": "none"}]:
            with self.subTest(change):
                run = subprocess.run([PROGRAM], env=os.environ | change, capture_output=True, text=True, check=False)
                self.assertEqual(run.stderr, "orvel: no window can be shown here; orvel-cli needs none\n")
                self.assertEqual(run.returncode, 1)
                subprocess.run([PROGRAM, "--help"], env=os.environ | change, capture_output=True, check=True)

    def test_a_disk_that_fills_up_is_told(self):
        old = self.folder / "old.ssd"
        old.write_bytes((EXAMPLES / "solid-set-1997.ssd").read_bytes())
        self.program(old, under=["prlimit", "--fsize=8192"])
        desktop.wait_for_text("File: old.ssd")
        for item, file_afterwards in [("Save As (Current Information)", "File: old.ssd"), ("New Client", "No File Open")]:
            desktop.choose("File", item)
            desktop.type_into("File name:", "new\n")
            desktop.find("File Save Error", "alert")
            desktop.wait_for_text("Error in saving file. Please check drives and disk space.")
            desktop.press("OK")
            desktop.wait_for_text(file_afterwards)
        self.assertEqual(old.read_bytes(), (EXAMPLES / "solid-set-1997.ssd").read_bytes())
        self.assertEqual(sorted(file.name for file in self.folder.iterdir()), ["old.ssd", "soil.dat", "user.usr"])

    def test_settings_and_soils_are_edited(self):
        soils = self.folder / "soil.dat"
        self.program()
        desktop.choose("Window", "User Settings")
        self.assertEqual(desktop.text_of("Company or Title:"), "County Extension Service")
        desktop.type_into("Name:", "Ole Berg")
        desktop.press("Save")
        desktop.wait_until_gone("User Settings", "dialog")
        self.assertEqual(self.settings.read_bytes(), user_settings("Ole Berg", str(self.folder)))

        before = soils.read_bytes()
        self.assertEqual(before[:28], text("Sand", 20) + struct.pack("<ff", 5, 5))
        desktop.choose("Window", "Soil Intake Settings")
        desktop.type_into("Soil Description, row 1", "Gravel")
        desktop.keys("Tab")
        desktop.type("a6.5")
        desktop.press("Save")
        desktop.wait_until_gone("Soil Intake Rates", "dialog")
        self.assertEqual(soils.read_bytes(), text("Gravel", 20) + struct.pack("<ff", 6.5, 5) + before[28:])

    def test_a_file_named_at_the_start_is_opened(self):
        self.program(EXAMPLES / "solid-set-1997.ssd")
        desktop.wait_for_text("File: solid-set-1997.ssd")
        kind = desktop.find("Solid Set System", "radio button")
        self.assertTrue(kind.get_state_set().contains(desktop.bus.StateType.CHECKED))

    def test_a_file_that_is_missing_is_told(self):
        self.program(self.folder / "none.cpd")
        desktop.wait_for_text(f"There is no file {self.folder}/none.cpd.")
        desktop.press("OK")
        desktop.wait_for_text("Open or Create New Data File to Begin")

    def test_incomplete_settings_are_told_in_front_of_the_splash_window(self):
        self.settings.unlink()
        self.program()
        desktop.find("User Settings Error", "alert")
        self.assertTrue(desktop.is_there(VERSION, "label"), "the splash window is still shown")
        desktop.press("OK")
        desktop.wait_for_text("Open or Create New Data File to Begin")
        self.assertEqual(self.settings.read_bytes(), b" " * 300 + text(str(self.folder), 50) + b"\0\0")

    def test_settings_that_cannot_be_kept_end_the_program(self):
        self.settings.unlink()
        self.settings.mkdir()
        self.program()
        desktop.find("ORVEL", "alert")
        desktop.keys("Return")
        desktop.find("Run-time error '75':\n\nPath/File access error", "label")
        desktop.press("OK")
        self.assertEqual(desktop.status(), 1)


if __name__ == "__main__":
    with Desktop() as desktop:
        unittest.main(verbosity=2)
