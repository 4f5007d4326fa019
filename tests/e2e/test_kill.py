# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Kills the program at random moments while somebody types: test_kill.py TYPIST [KILLS]

Of every entry that was finished nothing may be lost, and the test file is whole.
"""

import os
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile
import time

TYPIST, KILLS = sys.argv[1], int((sys.argv[2:] or [20])[0])
EXAMPLE = pathlib.Path(__file__).resolve().parents[2] / "examples" / "pivot-1978.cpd"
LONGEST = 2.0  # seconds of typing


def entries(lines):
    """What the typist said, by row or control; half a line at the end does not count."""
    return {tuple(line.split("\t")[:2]): line.split("\t")[2] for line in lines.split("\n")[:-1]}


def is_lost(what, text, restored):
    """A box may hold a later text, finished but not told any more; a row is typed once."""
    return restored != text and (what == "row" or int(restored.split()[-1]) < int(text.split()[-1]))


def kill_while_typing(test, dice):
    """What was finished when the typist was killed."""
    typist = subprocess.Popen([TYPIST, test, str(dice.randrange(1000))], stdout=subprocess.PIPE, text=True)
    first = typist.stdout.readline()
    time.sleep(dice.uniform(0, LONGEST))
    typist.kill()
    return entries(first + typist.communicate()[0])


def main():
    os.environ.update(QT_QPA_PLATFORM="offscreen", QT_LOGGING_RULES="*.warning=false")
    dice = random.Random(KILLS)
    whole = EXAMPLE.read_bytes()
    counts = []
    with tempfile.TemporaryDirectory() as folder:
        test = pathlib.Path(folder) / "test.cpd"
        shutil.copy(EXAMPLE, test)
        for kill in range(KILLS):
            finished = kill_while_typing(test, dice)
            if test.read_bytes() != whole:
                sys.exit(f"kill {kill}: the test file changed")
            restored = entries(subprocess.run([TYPIST, test], capture_output=True, text=True, check=True).stdout)
            lost = {which: text for which, text in finished.items() if is_lost(which[0], text, restored[which])}
            if lost:
                sys.exit(f"kill {kill}: of {len(finished)} entries these were lost: {lost}")
            counts.append(len(finished))
            for recovery in pathlib.Path(folder).glob("test.cpd.recovery*"):
                recovery.unlink()
    print(f"{KILLS} kills after {min(counts)} to {max(counts)} entries, {sum(counts)} in all; none was lost")


if __name__ == "__main__":
    main()
