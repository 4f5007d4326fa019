# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Uses the built program as a user does, and looks at the files it leaves."""

import json
import os
import struct
import subprocess

from program import (EXAMPLES, PROGRAM, ProgramTest, command_line, desktop, main, pivot_to_type, text, user_settings,
                     version_text)


class DesktopTest(ProgramTest):
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
        desktop.find("Center Pivot Data Entry", "dialog")
        self.assertEqual(desktop.text_of("Client Name:"), "")
        desktop.keys("ctrl+w")
        desktop.wait_for_text("Save Changes to Client Data?")
        desktop.press("No")
        desktop.wait_for_text("Really close without saving data?")
        desktop.press("Yes")
        desktop.wait_until_gone("Center Pivot Data Entry", "dialog")
        desktop.choose("Help", "About ORVEL")
        desktop.wait_for_text(version_text())
        desktop.press("OK")
        desktop.keys("ctrl+q")
        self.assertEqual(desktop.status(), 0)
        self.assertEqual(new.read_bytes(), record)

    def new_test_in_its_window(self, kind, extension):
        self.program()
        desktop.press(kind + " System", "radio button")
        desktop.choose("File", "New Client")
        desktop.type_into("File name:", "typed\n")
        desktop.wait_for_text("File: typed." + extension)
        desktop.press("Edit Data")
        desktop.find(kind + " Data Entry", "dialog")

    def type_texts(self, test, fields):
        for field, label in fields.items():
            desktop.type_into(label, test[field])

    def type_client(self, test):
        self.type_texts(test, {
            "ClientName": "Client Name:", "FarmName": "Farm Name:", "OperatorName": "Farm Operator:",
            "ClientPhone": "Phone:", "EMail": "E-Mail:", "ClientAddress": "Address:", "ClientCity": "City:",
            "ClientCounty": "County:", "ClientState": "State:", "ClientZip": "Zip Code:"})

    def type_field(self, test, label_of_acres, soil, slope, tillage):
        """The choices by their places in their lists."""
        desktop.press("Field Information", "page tab")
        self.type_texts(test, {"FieldName": "Field Name or Identifier:", "TotalAcres": label_of_acres,
                               "Crops": "Predominate Crops:", "FieldComments": "Field Comments:"})
        desktop.select("Soil Type:", soil)
        desktop.select("Soil Slope:", slope)
        desktop.select("Common Tillage:", tillage)

    def type_comments(self, test):
        desktop.press("Comments", "page tab")
        self.type_texts(test, {"OtherComments": "Comments / Recomendations:"})

    def auto_fill(self):
        desktop.press("Auto Fill")
        desktop.press("Yes")
        desktop.wait_until_gone("Auto Complete Entries")

    def type_readings(self, readings):
        """Each reading and Down: nothing else is pressed."""
        desktop.keys(*[key for reading in readings for key in [*str(reading), "Down"]], delay=5)

    def see_warnings(self):
        desktop.find("Possible Errors in Data", "alert")
        desktop.press("OK")

    def save_and_exit(self, window, has_warnings=False):
        desktop.press("Save and Exit")
        if has_warnings:
            self.see_warnings()
        desktop.wait_for_text("Close data entry window?")
        desktop.press("Yes")
        desktop.wait_until_gone(window, "dialog")

    def test_the_walk_through_the_first_test(self):
        """What README.md tells a new user to do, and no more."""
        self.new_test_in_its_window("Center Pivot", "cpd")
        desktop.type_into("Client Name:", "Alder Creek Farms")
        desktop.press("Field Information", "page tab")
        desktop.select("Soil Type:", 4)
        desktop.press("Test Data", "page tab")
        desktop.type_into("Rain Gauge Diameter (cm):", "10")
        desktop.type_into("Distance to First Gauge (feet):", "30")
        desktop.type_into("Gauge Spacing (feet):", "20")
        self.auto_fill()
        desktop.press_cell(1, 2)
        self.type_readings((112, 98, 105, 60))
        self.save_and_exit("Center Pivot Data Entry", has_warnings=True)
        desktop.press("Generate Report")
        self.see_warnings()
        desktop.find("Report", "frame")

        test = json.loads(command_line("dump", self.folder / "typed.cpd"))
        self.assertEqual([(cup["Footage"], cup["Volume"]) for cup in test["Gauges"][:5]],
                         [(30, 112), (50, 98), (70, 105), (90, 60), (110, 0)])

    def test_a_center_pivot_test_is_typed_from_a_page_of_notes(self):
        test, readings = pivot_to_type()
        self.new_test_in_its_window("Center Pivot", "cpd")
        self.type_client(test)
        self.type_field(test, "Estimated Acres:", soil=4, slope=2, tillage=2)
        desktop.press("System Information", "page tab")
        self.type_texts(test, {
            "SystemAge": "System Age:", "SprinklerAge": "Sprinker Age:",
            "DistanceToTower": "Distance to Last Tower (feet):", "LengthOverhang": "End Gun Overhang (feet):",
            "EndGunRadius": "End Gun Radius (feet):", "RadLastSprinkler": "Radius of Last Sprinkler (feet):",
            "EstFlowRate": "Estimated Flow Rate (GPM):", "MeasuredFlowRate": "Measured Flow Rate (GPM):",
            "EstimatedPressure": "Estimated Pressure:", "MeasuredPressure": "Measured Pressure:",
            "EndGunArc": "End Gun Arc:", "EndGunAcres": "Estimated Acres - End Gun:",
            "SystemComments": "System Comments:"})
        desktop.select("System Manufacturer:", 1)
        desktop.select("Type Sprinkler:", 2)
        desktop.press("Has End Gun", "check box")
        desktop.press("Has End Gun Shutoff", "check box")
        self.type_comments(test)
        desktop.press("Test Data", "page tab")
        self.type_texts(test, {
            "DateofTest": "Date of Test:", "PercentTimer": "Percent Timer Setting:",
            "TravelSpeedFeet": "Distance in Feet:", "TravelSpeedMinutes": "In Minutes:",
            "GuageDiameter": "Rain Gauge Diameter (cm):",
            "DistanceToFirstGuage": "Distance to First Gauge (feet):", "GuageSpacing": "Gauge Spacing (feet):"})
        desktop.select("Operation Times:", 3)
        self.auto_fill()
        desktop.keys("Tab")
        self.type_readings(readings)
        self.save_and_exit("Center Pivot Data Entry")
        self.assertEqual((self.folder / "typed.cpd").read_bytes(), self.built(test, "built.cpd"))

    def test_a_solid_set_test_is_typed_from_a_page_of_notes(self):
        test = json.loads((EXAMPLES / "solid-set-1997.json").read_text(encoding="utf-8"))
        readings = [round(cup["Volume"]) for cup in test["Gauges"]]
        self.assertEqual(len(readings), 16)
        # Sequence is the row's number where the grid has an X.
        test["Gauges"] = [{"Sequence": cup + 1, "XAxis": cup // 4 + 1, "YAxis": cup % 4 + 1, "Volume": reading}
                          for cup, reading in enumerate(readings)]

        self.new_test_in_its_window("Solid Set", "ssd")
        self.type_client(test)
        self.type_field(test, "Estimated Area:", soil=3, slope=1, tillage=2)
        desktop.press("System Information", "page tab")
        self.type_texts(test, {
            "SprinklerAge": "Sprinker Age:", "SprinklerSpacing": "Sprinkler Spacing:",
            "EstFlowRate": "Estimated Flow Rate:", "MeasuredFlowRate": "Measured Flow Rate:",
            "EstimatedPressure": "Estimated Pressure:", "MeasuredPressure": "Measured Pressure:",
            "SystemComments": "System Comments:"})
        desktop.select("Sprinkler Manufacturer:", 3)
        desktop.type_into("Sprinker Age:", test["SprinklerAge"])
        desktop.keys("Tab", "Tab", "space", "Down")
        self.type_comments(test)
        desktop.press("Test Data", "page tab")
        self.type_texts(test, {
            "DateofTest": "Date of Test:", "Duration": "Duration of Test (minutes):",
            "GuageDiameter": "Rain Gauge Diameter (cm):", "NumberX": "Number Gauges (X Axis):",
            "NumberY": "Number Gauges (Y Axis):"})
        desktop.select("Operation Times:", 2)
        self.auto_fill()
        desktop.keys("Tab")
        self.type_readings(readings)
        self.save_and_exit("Solid Set Data Entry")
        self.assertEqual((self.folder / "typed.ssd").read_bytes(), self.built(test, "built.ssd"))

    def test_the_main_window_has_the_keys_again_when_a_data_window_has_closed(self):
        self.new_test_in_its_window("Center Pivot", "cpd")
        for _ in range(3):
            desktop.keys("alt+w")
            desktop.wait_for_text("Really close without saving data?")
            desktop.keys("alt+y")
            desktop.wait_until_gone("Center Pivot Data Entry", "dialog")
            desktop.wait_until_active("ORVEL")
            desktop.keys("ctrl+d")
            desktop.find("Center Pivot Data Entry", "dialog")
            desktop.wait_until_active("Center Pivot Data Entry")

    def test_a_soil_left_unchosen_ends_the_program(self):
        self.new_test_in_its_window("Center Pivot", "cpd")
        before = (self.folder / "typed.cpd").read_bytes()
        desktop.type_into("Client Name:", "Nobody")
        desktop.keys("ctrl+s")
        desktop.find("Run-time error '13':\n\nType mismatch", "label")
        desktop.press("OK")
        self.assertEqual(desktop.status(), 1)
        self.assertEqual((self.folder / "typed.cpd").read_bytes(), before)

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
            if item.startswith("Save As"):
                desktop.press("Edit Data")
                desktop.type_into("Client Name:", "Somebody else")
                desktop.press("Save and Exit")
                desktop.find("File Save Error", "alert")
                desktop.press("OK")
                self.assertEqual(desktop.text_of("Client Name:"), "Somebody else")
                desktop.press("Close without Saving")
                desktop.press("Yes")
                desktop.wait_until_gone("Solid Set Data Entry", "dialog")
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
        self.assertTrue(desktop.is_there(version_text(), "label"), "the splash window is still shown")
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
    main()
