# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Starts the launchers of the Debian package, with programs behind them that only tell how they were called:
test_launchers.py PACKAGE"""

import os
import pathlib
import pwd
import subprocess
import sys
import tempfile
import unittest

PACKAGE = sys.argv.pop(1)
TELL = '#!/bin/sh\nprintf "%s\\n" "$ORVEL_PROGRAM_DIR" "$@"\n'


class LauncherTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="orvel-test-")
        cls.addClassCleanup(folder.cleanup)
        cls.root = pathlib.Path(folder.name) / "a root"
        cls.root.mkdir()
        subprocess.run(["dpkg-deb", "--extract", PACKAGE, cls.root], check=True)
        for program in ("orvel", "orvel-cli"):
            (cls.root / "usr/libexec/orvel" / program).write_text(TELL, encoding="ascii")
        cls.help = cls.root.resolve() / "usr/share/orvel/help.rtf"

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="orvel-test-")
        self.addCleanup(folder.cleanup)
        self.home = pathlib.Path(folder.name) / "Ida Lund"
        self.home.mkdir()
        self.own = self.home / ".local/share/orvel"

    def start(self, program, *arguments, path=None, **environment):
        """The program directory that the program is told, and the arguments that come to it."""
        surroundings = {"PATH": os.environ["PATH"], "HOME": str(self.home)} | environment
        told = subprocess.run([path or self.root / "usr/bin" / program, *arguments], check=True, capture_output=True, text=True,
                              cwd=self.home, env={name: value for name, value in surroundings.items() if value is not None})
        self.assertEqual(told.stderr, "")
        folder, *passed = told.stdout.splitlines()
        return folder, passed

    def help_files(self):
        return sorted(path.name for path in self.own.iterdir())

    def test_files_and_options_are_passed_on_as_they_are(self):
        for program in ("orvel", "orvel-cli"):
            arguments = ["north field.cpd", "", "--now", "a  b", "*"]
            self.assertEqual(self.start(program, *arguments), (str(self.own), arguments))

    def test_the_users_folder_is_made_for_nobody_else_and_gets_the_help(self):
        self.start("orvel")
        self.assertEqual(self.own.stat().st_mode & 0o777, 0o700)
        self.assertEqual((self.own / "help.rtf").readlink(), self.help)

    def test_the_command_line_makes_nothing(self):
        self.start("orvel-cli", "results", "a.cpd")
        self.assertEqual(list(self.home.iterdir()), [])

    def test_a_call_that_does_not_use_it_makes_nothing(self):
        for arguments in (["--help"], ["-h"], ["--version"], ["--program-dir", "/tmp"], ["--program-dir=/tmp", "a.cpd"]):
            self.start("orvel", *arguments)
            self.assertEqual(list(self.home.iterdir()), [], arguments)
        self.start("orvel", "--", "--help")
        self.assertTrue(self.own.is_dir())

    def test_help_of_the_users_own_stays(self):
        self.own.mkdir(parents=True)
        for name in ("help.rtf", "HELP.rtf", "Help.Rtf"):
            (self.own / name).write_text("mine", encoding="ascii")
            self.start("orvel")
            self.assertEqual(self.help_files(), [name])
            self.assertEqual((self.own / name).read_text(encoding="ascii"), "mine")
            (self.own / name).unlink()

    def test_a_link_that_leads_nowhere_is_made_anew(self):
        self.own.mkdir(parents=True)
        (self.own / "help.rtf").symlink_to("/no such folder/help.rtf")
        self.start("orvel")
        self.assertEqual((self.own / "help.rtf").readlink(), self.help)

    def test_the_folder_for_data_is_the_users_to_choose(self):
        data = self.home / "my data"
        for program in ("orvel", "orvel-cli"):
            self.assertEqual(self.start(program, XDG_DATA_HOME=str(data))[0], str(data / "orvel"))
        self.assertTrue((data / "orvel/help.rtf").exists())

    def test_a_relative_folder_for_data_counts_as_none(self):
        for value in ("data", ""):
            self.assertEqual(self.start("orvel", XDG_DATA_HOME=value)[0], str(self.own))

    def test_the_users_choice_of_program_directory_counts(self):
        other = self.home / "other"
        self.assertEqual(self.start("orvel", ORVEL_PROGRAM_DIR=str(other))[0], str(other))
        self.assertTrue((other / "help.rtf").exists())

    def test_without_home_it_is_the_one_that_the_system_knows(self):
        home = pwd.getpwuid(os.getuid()).pw_dir
        self.assertEqual(self.start("orvel-cli", HOME=None)[0], home + "/.local/share/orvel")

    def test_a_home_that_takes_nothing_is_the_programs_to_tell(self):
        (self.home / ".local").write_bytes(b"")
        self.assertEqual(self.start("orvel", "a.cpd"), (str(self.own), ["a.cpd"]))

    def test_a_link_to_the_launcher_finds_the_program(self):
        (self.home / "link").symlink_to(self.root / "usr/bin/orvel")
        self.assertEqual(self.start("orvel", "a.cpd", path=self.home / "link"), (str(self.own), ["a.cpd"]))


if __name__ == "__main__":
    unittest.main(verbosity=2)
