# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""What the end-to-end tests of the desktop program share: one desktop, and a folder for each test.

A test's main program takes the paths of the program and of the command line: test_x.py PROGRAM COMMAND-LINE [TEST...]
"""

import json
import pathlib
import subprocess
import sys
import tempfile
import time
import unittest

from desktop import Desktop

PROGRAM = sys.argv.pop(1)
COMMAND_LINE = sys.argv.pop(1)
EXAMPLES = pathlib.Path(__file__).resolve().parents[2] / "examples"

desktop = Desktop()


def text(value, width):
    return value.encode("cp1252").ljust(width)


def user_settings(name="Ida Lund", folder=""):
    """The bytes of a complete user.usr."""
    others = ["County Extension Service", "4 Court Square", "Alder Creek, XX 00000", "555-0100", "ida@extension.example"]
    return b"".join(text(field, 50) for field in [name, *others, folder]) + b"\xff\xff"


def version_text():
    """As the windows show it."""
    return "Version " + subprocess.run([PROGRAM, "--version"], capture_output=True, text=True, check=True).stdout.split()[1]


def command_line(*arguments):
    """What the command line writes."""
    return subprocess.run([COMMAND_LINE, *map(str, arguments)], capture_output=True, check=True).stdout


def pivot_to_type():
    """A center-pivot test as it is written down in the field, and its readings: cups 20 feet apart."""
    test = json.loads((EXAMPLES / "pivot-1978.json").read_text(encoding="utf-8"))
    readings = [cup["Volume"] for cup in test["Gauges"]]
    test |= {"DistanceToFirstGuage": "20", "GuageSpacing": "20",
             "Gauges": [{"Footage": 20 * cup, "Volume": 0} for cup in range(1, 301)]}
    for cup, reading in zip(test["Gauges"], readings):
        cup["Volume"] = reading
    return test, readings


def wait_for_a_calm_second():
    """The pause of the start-up never ends when it begins at second 58."""
    while time.localtime().tm_sec >= 50:
        time.sleep(0.2)


class ProgramTest(unittest.TestCase):
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

    def built(self, test, name):
        """The bytes of the test file that the command line builds."""
        (self.folder / "test.json").write_text(json.dumps(test), encoding="utf-8")
        command_line("build", self.folder / "test.json", "-o", self.folder / name)
        return (self.folder / name).read_bytes()


def main():
    with desktop:
        unittest.main(module="__main__", verbosity=2)
