# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""What a screen reader finds in every window of the built program: each control with its role and a name of its own.

Needs the Debian packages of desktop.py.
"""

import collections
import shutil

from program import EXAMPLES, ProgramTest, desktop, main, version_text

CONTROLS = {"push button", "check box", "radio button", "text", "combo box", "table", "page tab", "menu item", "label",
            "tool bar", "list", "image"}
# What holds them together, and parts of them.
OTHERS = {"frame", "dialog", "alert", "filler", "panel", "layered pane", "page tab list", "menu bar", "popup menu",
          "separator", "status bar", "scroll bar", "unknown"}
# Whose parts are looked at by themselves.
CLOSED = {"table", "list", "text"}
# What may have the keys beside the controls: a page tab list for its tabs.
WITH_KEYS = CONTROLS | {"page tab list"}

MENUS = {"File": ["New Client", "Open Existing Client", "Close Current Client", "Save Current Information",
                  "Save As (Current Information)", "Export Summary", "Print Data Summary", "Exit"],
         "Edit": ["Undo", "Cut", "Copy", "Paste", "Paste Special..."],
         "Window": ["Data Entry", "View Report", "Soil Intake Settings", "User Settings"],
         "Help": ["Instructions", "About ORVEL"]}
REPORT_MENUS = {"File": ["Open...", "Close", "Refresh Report Computation", "Save As...", "Save as HTML...", "Print...",
                         "Close Report"],
                "Edit": ["Undo", "Cut", "Copy", "Copy Report", "Paste"],
                "Window": ["Main Window", "Data Entry", "Instructions"],
                "Help": ["Instructions", "About"]}
DATA_MENUS = {"File": ["Save", "Discard Changes", "Close Window"],
              "Edit": ["Undo", "Cut", "Copy", "Paste"],
              "Help": ["Instructions", "About"]}
TABS = ["Client Information", "Field Information", "System Information", "Test Data", "Comments"]
CLIENT = {"text": ["Client Name:", "Farm Name:", "Farm Operator:", "Phone:", "E-Mail:", "Address:", "City:", "County:",
                   "State:", "Zip Code:"]}
COMMENTS = {"text": ["Comments / Recomendations:"]}
GRID = {"table": ["Measurements"], "push button": ["Auto Fill"]}


def field_page(acres):
    return {"text": ["Field Name or Identifier:", acres, "Predominate Crops:", "Field Comments:"],
            "combo box": ["Soil Type:", "Soil Slope:", "Common Tillage:"]}


# By the letter of the page.
PIVOT_PAGES = {
    "c": CLIENT,
    "i": field_page("Estimated Acres:"),
    "y": {"text": ["System Age:", "Sprinker Age:", "Distance to Last Tower (feet):", "End Gun Overhang (feet):",
                   "End Gun Radius (feet):", "Radius of Last Sprinkler (feet):", "Estimated Flow Rate (GPM):",
                   "Measured Flow Rate (GPM):", "Estimated Pressure:", "Measured Pressure:", "End Gun Arc:",
                   "Estimated Acres - End Gun:", "System Comments:"],
          "combo box": ["System Manufacturer:", "Type Sprinkler:"],
          "check box": ["Leaks Observed", "Has End Gun", "Has End Gun Shutoff"]},
    "t": {"text": ["Date of Test:", "Percent Timer Setting:", "Distance in Feet:", "In Minutes:", "and Seconds:",
                   "Rain Gauge Diameter (cm):", "Distance to First Gauge (feet):", "Gauge Spacing (feet):"],
          "combo box": ["Operation Times:"]} | GRID,
    "m": COMMENTS}
SOLID_PAGES = {
    "c": CLIENT,
    "i": field_page("Estimated Area:"),
    "y": {"text": ["Sprinker Age:", "Sprinkler Spacing:", "Estimated Flow Rate:", "Measured Flow Rate:",
                   "Estimated Pressure:", "Measured Pressure:", "System Comments:"],
          "combo box": ["Sprinkler Manufacturer:"],
          "radio button": ["Triangular Spacing", "Square Spacing"],
          "check box": ["Leaks Observed"]},
    "t": {"text": ["Date of Test:", "Duration of Test (minutes):", "Rain Gauge Diameter (cm):",
                   "Number Gauges (X Axis):", "Number Gauges (Y Axis):"],
          "combo box": ["Operation Times:"]} | GRID,
    "m": COMMENTS}


class Seen(collections.namedtuple("Seen", "control role name path")):
    def has(self, state):
        return self.control.get_state_set().contains(getattr(desktop.bus.StateType, state))


def label_of(control):
    """The name of what the control is labelled by, or its own."""
    for relation in control.get_relation_set():
        if relation.get_relation_type() == desktop.bus.RelationType.LABELLED_BY:
            return relation.get_target(0).get_name()
    return control.get_name()


def everything_in(control, path=""):
    """From the window down, with each one's path to be told by."""
    role = control.get_role_name()
    # A list's own name is the text that it shows.
    name = label_of(control) if role == "combo box" else control.get_name()
    path = f"{path} > {role} \"{name}\""
    yield Seen(control, role, name, path)
    if role not in CLOSED:
        for i in range(control.get_child_count()):
            yield from everything_in(control.get_child_at_index(i), path)


class AccessibilityTest(ProgramTest):
    def program_with(self, example):
        shutil.copy(EXAMPLES / example, self.folder)
        self.program(self.folder / example)
        desktop.wait_for_text("File: " + example)
        desktop.wait_until_active("ORVEL")

    def expect(self, window, controls, menus=None):
        """Every control of the window has a role that fits and a name that no other one has; those that the user can
        use are these, by role."""
        self.assertIn(window.get_role_name(), desktop.WINDOWS + ("alert",), window.get_name())
        found, names = collections.defaultdict(list), collections.Counter()
        for seen in everything_in(window):
            self.assertIn(seen.role, CONTROLS | OTHERS, "what is this? " + seen.path)
            if not seen.has("SHOWING") or seen.role not in WITH_KEYS | {"filler"}:
                continue
            if seen.has("FOCUSED"):
                self.assertIn(seen.role, WITH_KEYS, "has the keys: " + seen.path)
            if seen.role in CONTROLS:
                self.assertNotEqual(seen.name.strip(), "", "has no name: " + seen.path)
                names[seen.role, seen.name] += seen.role != "label"
            if seen.role not in ("label", "image", "menu item", "tool bar", "list", "filler", "page tab list"):
                found[seen.role].append(seen.name)
                self.assertTrue(seen.has("FOCUSABLE"), "can't have the keys: " + seen.path)
            if seen.role == "text" and seen.has("EDITABLE"):
                self.assertEqual(label_of(seen.control).removesuffix(":").split(" ")[-1],
                                 seen.name.removesuffix(":").split(" ")[-1], "another label: " + seen.path)
        self.assertEqual([name for name, count in names.items() if count > 1], [], "twice in " + window.get_name())
        self.assertEqual({role: sorted(of_role) for role, of_role in found.items()},
                         {role: sorted(of_role) for role, of_role in controls.items()}, window.get_name())
        self.expect_menus(window, menus or {})

    def expect_menus(self, window, menus):
        found = {}
        for seen in everything_in(window):
            if seen.role == "popup menu" and seen.control.get_parent().get_role_name() == "menu item":
                items = [seen.control.get_child_at_index(i) for i in range(seen.control.get_child_count())]
                found[seen.control.get_parent().get_name()] = [
                    item.get_name() for item in items if item.get_role_name() != "separator"]
        self.assertEqual(found, menus, window.get_name())

    def expect_box(self, title, *buttons):
        box = desktop.find(title, "alert")
        self.expect(box, {"push button": list(buttons)})
        self.assertTrue(any(seen.role == "label" and len(seen.name) > 10 for seen in everything_in(box)), title)

    def expect_grid(self, window, headers):
        """A reader hears a cell's text, and at least the header of its column."""
        grid = desktop.find("Measurements", "table", window)
        for column, header in enumerate(headers):
            self.assertEqual(desktop.bus.Table.get_column_description(grid, column), header)
            cell = desktop.bus.Table.get_accessible_at(grid, 0, column)
            self.assertEqual(cell.get_role_name(), "table cell")
            self.assertNotEqual(cell.get_name(), "", header)
        self.assertEqual([desktop.bus.Table.get_accessible_at(grid, row, 0).get_name() for row in (0, 1, 299)],
                         ["1", "2", "300"])

    def expect_pages(self, title, pages, buttons, menus):
        window = desktop.find(title, "dialog")
        desktop.wait_until_active(title)
        for letter, page in pages.items():
            desktop.keys("alt+" + letter)
            first = page["text"][0]
            desktop.find(first, "text", title)
            controls = page | {"push button": [*buttons, *page.get("push button", [])], "page tab": TABS}
            # The text of a list is a part of it that has its label, too.
            controls["text"] = page["text"] + page.get("combo box", [])
            self.expect(window, controls, menus)
            for seen in everything_in(window):
                if seen.role == "list":
                    self.assertNotEqual(seen.name, "", seen.path)

    def test_the_splash_and_the_main_window(self):
        self.program()
        splash = desktop.find(version_text(), "label").get_parent()
        self.expect(splash, {})
        desktop.wait_for_text("Open or Create New Data File to Begin")
        desktop.wait_until_gone(version_text(), "label")
        self.expect(desktop.find("ORVEL", "frame"), {
            "radio button": ["Center Pivot System", "Solid Set System"],
            "push button": ["Edit Data", "New Data File", "Open Existing Data File", "Generate Report"]}, MENUS)
        desktop.wait_until_active("ORVEL")
        desktop.keys("alt+w", "s")
        self.expect(desktop.find("Soil Intake Rates", "dialog"), {
            "text": [f"{column}, row {row}" for column in ("Soil Description", "Minimum", "Maximum")
                     for row in range(1, 8)],
            "push button": ["Save", "Cancel"]})
        desktop.keys("Escape")
        desktop.wait_until_gone("Soil Intake Rates", "dialog")
        desktop.wait_until_active("ORVEL")
        desktop.keys("alt+w", "u")
        self.expect(desktop.find("User Settings", "dialog"), {
            "text": ["Name:", "Company or Title:", "Address:", "City, State, Zip:", "Telephone:", "E-Mail:",
                     "Default Directory:"],
            "push button": ["Browse...", "Save", "Cancel"]})
        desktop.keys("Escape")
        desktop.wait_until_gone("User Settings", "dialog")
        desktop.wait_until_active("ORVEL")
        desktop.keys("alt+h", "a")
        self.expect(desktop.find("About ORVEL", "dialog"), {"push button": ["OK"]})
        desktop.keys("Return")
        desktop.wait_until_gone("About ORVEL", "dialog")
        desktop.wait_until_active("ORVEL")
        desktop.keys("F1")
        self.expect(desktop.find("No Help File Available", "dialog"),
                    {"text": ["Text"], "push button": ["Print", "Save", "Close"]})

    def test_the_center_pivot_window_its_cell_editor_and_its_question(self):
        self.program_with("pivot-1978.cpd")
        desktop.keys("ctrl+d")
        title = "Center Pivot Data Entry"
        menus = DATA_MENUS | {"File": ["Save", "Save As...", "Discard Changes", "Close Window"]}
        self.expect_pages(title, PIVOT_PAGES, ["Save As", "Close without Saving", "Save and Exit"], menus)
        desktop.keys("alt+t")
        self.expect_grid(title, ["Sequence", "Distance Feet", "Volume (cc)"])
        desktop.press_key_until("Tab", "Measurements", "table")
        desktop.type("7")
        editor = desktop.find("Cell editor", "text")
        self.assertTrue(editor.get_state_set().contains(desktop.bus.StateType.FOCUSED))
        self.assertEqual(desktop.text_of("Cell editor"), "7")
        desktop.keys("Escape", "alt+w")
        self.expect_box("Close Data Window", "Yes", "No", "Cancel")
        desktop.keys("Escape")
        desktop.wait_until_gone("Close Data Window", "alert")

    def test_the_solid_set_window(self):
        self.program_with("solid-set-1997.ssd")
        desktop.keys("ctrl+d")
        title = "Solid Set Data Entry"
        self.expect_pages(title, SOLID_PAGES, ["Close without Saving", "Save and Exit"], DATA_MENUS)
        desktop.keys("alt+t")
        self.expect_grid(title, ["Sequence", "X Axis", "Y Axis", "Volume (cc)"])

    def test_the_report_and_a_box_with_a_picture(self):
        self.program_with("solid-set-triangle.ssd")
        desktop.keys("ctrl+r")
        self.expect_box("Possible Errors in Data", "OK")
        desktop.keys("Return")
        desktop.wait_until_active("Report")
        self.expect(desktop.find("Report", "frame"), {
            "text": ["Report"],
            "push button": ["Back", "Open", "Save", "Print", "Help", "Refresh"],
            "check box": ["Bold", "Italic", "Lock"]}, REPORT_MENUS)
        self.assertTrue(desktop.find("Lock", "check box").get_state_set().contains(desktop.bus.StateType.CHECKED))


if __name__ == "__main__":
    main()
