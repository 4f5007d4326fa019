# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""What the command line tells of its progress, where standard error is a terminal and where it isn't:
test_progress.py COMMAND-LINE EXAMPLES"""

import os
import pathlib
import pty
import subprocess
import sys
import tempfile
import unittest

COMMAND_LINE = sys.argv.pop(1)
EXAMPLES = pathlib.Path(sys.argv.pop(1))
FILES = [EXAMPLES / "pivot-1978.cpd", EXAMPLES / "solid-set-1997.ssd", EXAMPLES / "solid-set-triangle.ssd"]


def on_terminal(*arguments, streams=("stderr",)):
    """What comes to a terminal that has these streams; the others are a pipe that nobody looks at."""
    ours, theirs = pty.openpty()
    options = {name: theirs if name in streams else subprocess.DEVNULL for name in ("stdout", "stderr")}
    with subprocess.Popen([COMMAND_LINE, *map(str, arguments)], **options):
        os.close(theirs)
        shown = b""
        try:
            while piece := os.read(ours, 4096):
                shown += piece
        except OSError:
            pass  # nobody writes any more
    os.close(ours)
    return shown.decode("utf-8").replace("\r\n", "\n")


def screen(shown):
    """What is left to see of it: what is written behind a CR takes the place of what stood there."""
    lines = []
    for line in shown.split("\n"):
        seen = ""
        for part in line.split("\r"):
            seen = part + seen[len(part):]
        lines.append(seen.rstrip())
    return "\n".join(lines)


class ProgressTest(unittest.TestCase):
    def test_files_are_counted_on_a_terminal(self):
        with tempfile.TemporaryDirectory(prefix="orvel-test-") as folder:
            shown = on_terminal("report", "--output-dir", folder, *FILES)
        for done in range(4):
            self.assertIn(f"{done} of 3 files", shown)

    def test_nothing_of_it_stays(self):
        shown = on_terminal("results", "--json", "--output", "/dev/null", *FILES)
        self.assertIn("3 of 3 files", shown)
        self.assertEqual(screen(shown), "")

    def test_messages_take_its_place(self):
        with tempfile.TemporaryDirectory(prefix="orvel-test-") as folder:
            shown = on_terminal("report", "--output-dir", folder, FILES[0], "missing.cpd", FILES[1])
        self.assertRegex(screen(shown), r"(?m)^orvel-cli: missing.cpd: ")
        self.assertEqual(screen(shown).split("\n")[-1], "")
        self.assertNotIn("files", screen(shown))

    def test_results_that_go_to_a_pipe_are_counted(self):
        self.assertIn("3 of 3 files", on_terminal("results", *FILES))

    def test_results_on_the_same_terminal_are_not(self):
        self.assertNotIn("of 3 files", on_terminal("results", *FILES, streams=("stdout", "stderr")))

    def test_one_file_is_not(self):
        self.assertEqual(on_terminal("results", FILES[1]), "")

    def test_where_nobody_looks_on_nothing_is_written(self):
        done = subprocess.run([COMMAND_LINE, "results", *FILES], check=True, capture_output=True)
        self.assertEqual(done.stderr, b"")


if __name__ == "__main__":
    unittest.main(verbosity=2)
