# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Nothing that was typed is lost, however the program ends."""

import json
import os
import shutil
import signal

from program import EXAMPLES, ProgramTest, command_line, desktop, main


class RecoveryTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.test = self.folder / "test.cpd"
        self.recovery = self.folder / "test.cpd.recovery"
        shutil.copy(EXAMPLES / "pivot-1978.cpd", self.test)

    def open_data_window(self):
        self.program(self.test)
        desktop.wait_for_text("File: test.cpd")
        desktop.press("Edit Data")

    def restore(self):
        """The next run of the program, in which the user wants everything back."""
        self.open_data_window()
        desktop.find("Restore Entries")
        desktop.press("Yes")
        desktop.find("Center Pivot Data Entry", "dialog")

    def kept(self):
        """What the recovery file holds; None when there is none."""
        return json.loads(self.recovery.read_text(encoding="utf-8")) if self.recovery.exists() else None

    def wait_for_kept(self, row, text):
        desktop.wait_for(lambda: (self.kept() or {"cells": [["", ""]] * 300})["cells"][row - 1][1] == text,
                         f"row {row} in the recovery file")

    def go_to_the_first_reading(self):
        desktop.press("Test Data", "page tab")
        desktop.press("Auto Fill")
        desktop.press("Yes")
        desktop.wait_until_gone("Auto Complete Entries")
        desktop.keys("Tab")

    def test_a_point_that_ends_the_program_costs_nothing(self):
        example = json.loads((EXAMPLES / "pivot-1978.json").read_text(encoding="utf-8"))
        (self.folder / "test.json").write_text(json.dumps(example | {"Gauges": []}), encoding="utf-8")
        command_line("build", self.folder / "test.json", "-o", self.test)
        self.open_data_window()
        desktop.type_into("Client Name:", "A. Grower")
        desktop.press("Field Information", "page tab")
        desktop.type_into("Field Comments:", "wet\nheaded out")
        desktop.select("Soil Type:", 2)
        soil = desktop.text_of("Soil Type:")
        desktop.press("Test Data", "page tab")
        desktop.type_into("Distance to First Gauge (feet):", "20")
        desktop.type_into("Gauge Spacing (feet):", "20")
        self.go_to_the_first_reading()
        readings = [str(10 + reading) for reading in range(50)]
        desktop.keys(*[key for reading in readings for key in [*reading, "Down"]], "period", "Down", delay=5)
        self.wait_for_kept(51, ".")
        before = self.test.read_bytes()
        desktop.keys("ctrl+s")
        desktop.wait_for_text("Run-time error '13':\n\nType mismatch")
        desktop.press("OK")
        self.assertEqual(desktop.status(), 1)
        self.assertEqual(self.test.read_bytes(), before)

        self.restore()
        self.assertEqual(desktop.text_of("Client Name:"), "A. Grower")
        desktop.press("Field Information", "page tab")
        self.assertEqual(desktop.text_of("Field Comments:"), "wet\nheaded out")
        kept = self.kept()
        self.assertEqual([row[1] for row in kept["cells"][:52]], [*readings, ".", ""])
        # The point is mended in place: nothing else was typed again.
        desktop.press("Test Data", "page tab")
        desktop.press_cell(1, 2)
        desktop.keys(*["Down"] * 50, "6", "0", "Return", delay=5)
        desktop.keys("ctrl+s")
        desktop.wait_for(lambda: not self.recovery.exists(), "Save to remove the recovery file")
        saved = json.loads(command_line("dump", self.test))
        self.assertEqual([cup["Volume"] for cup in saved["Gauges"]][:51], [*map(int, readings), 60])
        self.assertEqual(saved["ClientName"], "A. Grower")
        self.assertEqual(saved["SoilType"], soil)
        self.assertNotEqual(soil, example["SoilType"])

    def test_what_nobody_wants_back_is_kept_until_the_next_save(self):
        self.open_data_window()
        desktop.type_into("Client Name:", "Nobody\t")
        desktop.wait_for(self.kept, "the recovery file")
        os.kill(desktop.program.pid, signal.SIGKILL)
        desktop.program.wait()
        self.open_data_window()
        desktop.find("Restore Entries")
        desktop.press("No")
        self.assertNotEqual(desktop.text_of("Client Name:"), "Nobody")
        self.assertFalse(self.recovery.exists())
        aside = self.folder / "test.cpd.recovery-1"
        self.assertIn("Nobody", aside.read_text(encoding="utf-8"))
        desktop.keys("ctrl+s")
        desktop.wait_for(lambda: not aside.exists(), "Save to remove it")


if __name__ == "__main__":
    main()
