# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Unpacks the portable archive and uses it, here and elsewhere: test_archive.py PROGRAM COMMAND-LINE ARCHIVE

PROGRAM and COMMAND-LINE are those of the build."""

import pathlib
import subprocess
import sys
import tarfile
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "e2e"))
ARCHIVE = pathlib.Path(sys.argv.pop(3))
from program import desktop, main, user_settings, wait_for_a_calm_second  # noqa: E402  pylint: disable=wrong-import-position


class ArchiveTest(unittest.TestCase):
    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory(prefix="orvel-test-")
        self.addCleanup(self.temporary.cleanup)
        self.place = pathlib.Path(self.temporary.name)
        with tarfile.open(ARCHIVE) as archive:
            archive.extractall(self.place)
        self.folder = self.place / ARCHIVE.name.removesuffix(".tar.gz")

    def test_it_is_one_folder_with_everything(self):
        self.assertEqual([path.name for path in self.place.iterdir()], [self.folder.name])
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()),
                         ["COPYRIGHT", "LICENSE", "README.txt", "completion", "examples", "help.rtf", "man", "orvel", "orvel-cli"])
        self.assertIn("libqt6widgets6", (self.folder / "README.txt").read_text(encoding="utf-8"))

    def test_the_folder_is_the_program_directory_wherever_it_is(self):
        moved = self.place / "a stick" / "ORVEL"
        moved.parent.mkdir()
        self.folder.rename(moved)
        (moved / "user.usr").write_bytes(user_settings("Ida Lund"))
        report = subprocess.run([moved / "orvel-cli", "report", moved / "examples/pivot-1978.cpd"], cwd="/", check=True,
                                capture_output=True, text=True).stdout
        self.assertIn("Ida Lund", report)

        wait_for_a_calm_second()
        self.addCleanup(desktop.end)
        desktop.open([moved / "orvel", moved / "examples/solid-set-1997.ssd"])
        desktop.wait_for_text("File: solid-set-1997.ssd")
        self.assertTrue((moved / "soil.dat").exists())
        desktop.choose("Help", "Instructions")
        desktop.find("Help & Instructions", "dialog")
        self.assertTrue(desktop.text_of("Text").startswith("ORVEL: Instructions\n"))


if __name__ == "__main__":
    main()
