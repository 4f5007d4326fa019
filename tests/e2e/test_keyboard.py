# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""A whole test without a mouse: typed, reported, saved, and nearly printed.

Needs the Debian packages of desktop.py and those of print_server.py.
"""

import unittest.mock

from print_server import PrintServer
from program import ProgramTest, command_line, desktop, main, pivot_to_type


class KeyboardTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.server = PrintServer()
        self.server.__enter__()
        self.addCleanup(self.server.__exit__)
        clicks = unittest.mock.patch.object(desktop, "_click", side_effect=AssertionError("a click"))
        clicks.start()
        self.addCleanup(clicks.stop)

    @staticmethod
    def type_boxes(test, *fields):
        """One after the other, Tab between them: a field's text, of a list so many entries below, or a key."""
        for number, field in enumerate(fields):
            if number > 0:
                desktop.keys("Tab")
            if isinstance(field, int):
                desktop.keys(*["Down"] * field)
            elif field in test:
                desktop.type(test[field])
            elif field:
                desktop.keys(field)

    def type_pages(self, test, readings):
        self.type_boxes(test, "ClientName", "FarmName", "OperatorName", "ClientPhone", "EMail", "ClientAddress",
                        "ClientCity", "ClientCounty", "ClientState", "ClientZip")
        desktop.keys("alt+i")
        self.type_boxes(test, "FieldName", "TotalAcres", "Crops", 4, 2, 2, "FieldComments")
        desktop.keys("alt+y")
        self.type_boxes(test, 1, "SystemAge", 2, "SprinklerAge", "DistanceToTower", "LengthOverhang", "EndGunRadius",
                        "RadLastSprinkler", "EstFlowRate", "MeasuredFlowRate", "EstimatedPressure", "MeasuredPressure",
                        "", "space", "space", "EndGunArc", "EndGunAcres", "SystemComments")
        desktop.keys("alt+m")
        self.type_boxes(test, "OtherComments")
        desktop.keys("alt+t")
        self.type_boxes(test, "DateofTest", 3, "PercentTimer", "TravelSpeedFeet", "TravelSpeedMinutes", "",
                        "GuageDiameter", "DistanceToFirstGuage", "GuageSpacing")
        desktop.keys("alt+l")
        desktop.find("Auto Complete Entries", "alert")
        desktop.keys("alt+y")
        desktop.wait_until_gone("Auto Complete Entries", "alert")
        desktop.keys("Tab", "Tab")
        desktop.keys(*[key for reading in readings for key in [*str(reading), "Down"]], delay=5)

    def test_a_test_is_entered_reported_saved_and_closed(self):
        test, readings = pivot_to_type()
        self.program()
        desktop.wait_for_text("Open or Create New Data File to Begin")
        desktop.wait_until_active("ORVEL")
        desktop.keys("alt+s", "Left", "ctrl+n")
        desktop.find("Create New Data File - Center Pivot System")
        desktop.type("typed\n")
        desktop.wait_for_text("File: typed.cpd")
        desktop.keys("alt+d")
        desktop.wait_until_active("Center Pivot Data Entry")
        self.type_pages(test, readings)
        desktop.keys("alt+s")
        desktop.wait_for_text("Close data entry window?")
        desktop.keys("alt+y")
        desktop.wait_until_gone("Center Pivot Data Entry", "dialog")
        self.assertEqual((self.folder / "typed.cpd").read_bytes(), self.built(test, "built.cpd"))

        desktop.wait_until_active("ORVEL")
        desktop.keys("alt+w", "v")
        desktop.wait_until_active("Report")
        self.assertIn(test["ClientName"], desktop.text_of("Report"))
        desktop.keys("alt+f", "a")
        desktop.wait_until_active("Save Report As - Enter File Name")
        report = self.folder / "report.rtf"
        desktop.type(f"{report}\n")
        desktop.wait_for(report.exists, "the saved report")
        desktop.wait_until_active("Report")
        self.assertEqual(command_line("text", report).decode().split(), desktop.text_of("Report").split())
        desktop.keys("ctrl+p")
        desktop.wait_until_active("Print Report")
        desktop.keys("Escape")
        desktop.wait_until_active("Report")
        self.assertEqual(self.server.jobs(0), [])
        desktop.keys("ctrl+w")
        desktop.wait_until_gone("Report", "frame")
        desktop.wait_until_active("ORVEL")
        desktop.keys("alt+f", "c")
        desktop.wait_for_text("No File Open")
        desktop.keys("alt+f", "x")
        self.assertEqual(desktop.status(), 0)


if __name__ == "__main__":
    main()
