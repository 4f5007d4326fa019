# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Reads from the programs, as they are installed, how hard they are to take over: test_hardening.py CMAKE BUILD
optimised|not-optimised PROGRAM..."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

CMAKE, BUILD, KIND, *PROGRAMS = sys.argv[1:]


class HardeningTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="orvel-test-")
        cls.addClassCleanup(folder.cleanup)
        subprocess.run([CMAKE, "--install", BUILD, "--prefix", folder.name], check=True, stdout=subprocess.DEVNULL)
        files = [path for path in pathlib.Path(folder.name).iterdir() if path.is_file()]
        cls.programs = sorted(path for path in files if os.access(path, os.X_OK))

    def read(self, *options):
        """The name of each program and what readelf says of it."""
        return [
            f"{program.name}:\n"
            + subprocess.run(
                ["readelf", "--wide", *options, program], check=True, capture_output=True, text=True, env={"LC_ALL": "C"}
            ).stdout
            for program in self.programs
        ]

    def imported(self):
        return [re.findall(r" UND (\w+)", symbols) for symbols in self.read("--dyn-syms")]

    def test_all_programs_are_among_them(self):
        self.assertEqual(sorted(PROGRAMS), [program.name for program in self.programs])

    def test_they_have_no_fixed_address(self):
        for header in self.read("--file-header"):
            self.assertRegex(header, r"Type: +DYN ")
        for dynamic in self.read("--dynamic"):
            self.assertRegex(dynamic, r"\(FLAGS_1\).* PIE")

    def test_what_the_loader_has_filled_in_is_read_only(self):
        for segments in self.read("--program-headers"):
            self.assertIn("GNU_RELRO", segments)
        for dynamic in self.read("--dynamic"):
            self.assertRegex(dynamic, r"\(FLAGS\).* BIND_NOW")
            self.assertRegex(dynamic, r"\(FLAGS_1\).* NOW")

    def test_their_stack_holds_no_code(self):
        for segments in self.read("--program-headers"):
            self.assertRegex(segments, r"GNU_STACK +(0x\w+ +){5}RW +")

    def test_no_segment_can_be_both_written_and_run(self):
        for segments in self.read("--program-headers"):
            flags = re.findall(r"^ +LOAD +(?:0x\w+ +){5}([RWE ]{3})", segments, re.MULTILINE)
            self.assertIn("R E", flags)
            self.assertNotIn("RWE", flags)

    def test_they_look_for_libraries_where_the_system_does(self):
        for dynamic in self.read("--dynamic"):
            self.assertIn("(NEEDED)", dynamic)
            self.assertNotRegex(dynamic, r"\((RPATH|RUNPATH)\)")

    def test_a_damaged_stack_ends_them(self):
        for symbols in self.imported():
            self.assertIn("__stack_chk_fail", symbols)


class FortifiedTest(HardeningTest):
    """Of an optimised build."""

    def test_the_c_library_checks_sizes(self):
        for symbols in self.imported():
            self.assertTrue([name for name in symbols if re.fullmatch(r"__\w+_chk", name)], symbols)


def load_tests(loader, _tests, _pattern):
    return loader.loadTestsFromTestCase(FortifiedTest if KIND == "optimised" else HardeningTest)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
