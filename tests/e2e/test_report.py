# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""The report and the viewer of the built program: looked at, saved and printed as a user does."""

import json
import re
import shutil
import subprocess
import xml.etree.ElementTree as ElementTree

from print_server import PrintServer
from program import EXAMPLES, ProgramTest, command_line, desktop, main

POINTS_PER_INCH = 72
LINE_HEIGHT = 10.2  # points, of Courier New 9
RED, BLUE, GREEN = "255,0,0", "0,0,255", "0,255,0"
A_MOMENT = re.compile(rb"\d{4}-\d\d-\d\d \d\d:\d\d:\d\d")


def without_its_moment(report):
    """The report, whenever it was made."""
    return A_MOMENT.sub(b"now", report)


def pages(pdf):
    """Of each page the size, and the words with the rectangles around them, in points from the corner."""
    run = subprocess.run(["pdftotext", "-bbox", "-", "-"], input=pdf, capture_output=True, check=True)
    document = re.sub(rb"<!DOCTYPE[^>]*>|xmlns=\"[^\"]*\"", b"", run.stdout).decode()
    for page in ElementTree.fromstring(document).iter("page"):
        words = [(*(float(word.get(side)) for side in ("xMin", "yMin", "xMax", "yMax")), word.text)
                 for word in page.iter("word")]
        yield float(page.get("width")), float(page.get("height")), words


def lines(text):
    """The lines that are not blank, their words one blank apart."""
    return [" ".join(line.split()) for line in text.splitlines() if line.strip()]


def words_of(pdf):
    """All words in their order; long lines of the text are several on the paper."""
    run = subprocess.run(["pdftotext", "-layout", "-", "-"], input=pdf, capture_output=True, check=True)
    return run.stdout.decode().split()


class ReportWindowTest(ProgramTest):
    def open_report(self, example="pivot-1978.cpd", under=()):
        self.test = self.folder / example
        shutil.copy(EXAMPLES / example, self.test)
        self.program(self.test, under=under)
        desktop.wait_for_text("File: " + example)
        desktop.press("Generate Report")
        desktop.wait_for_text("Current File: " + example)

    def open_report_with_warnings(self, example):
        """The same of a test with catches that look odd."""
        self.test = self.folder / example
        shutil.copy(EXAMPLES / example, self.test)
        self.program(self.test)
        desktop.wait_for_text("File: " + example)
        desktop.press("Generate Report")
        desktop.find("Possible Errors in Data", "alert")
        desktop.press("OK")
        desktop.wait_for_text("Current File: " + example)

    @staticmethod
    def shown():
        return desktop.text_of("Report")


class ReportTest(ReportWindowTest):
    def saved(self, item, name):
        """What the report's window saves under that name."""
        desktop.choose("File", item, "Report")
        desktop.type_into("File name:", str(self.folder / name) + "\n")
        desktop.wait_until_gone("File name:")
        return (self.folder / name).read_bytes()

    def test_a_report_is_shown_with_its_marks(self):
        self.open_report()
        expected = command_line("report", "--format", "text", "--program-dir", self.folder, self.test)
        shown = self.shown()
        self.assertEqual(lines(without_its_moment(shown.encode()).decode()),
                         lines(without_its_moment(expected).decode()))
        cups = json.loads((EXAMPLES / "pivot-1978.json").read_text(encoding="utf-8"))["Gauges"]
        average = sum(cup["Volume"] for cup in cups) / len(cups)

        def beyond(is_beyond):
            return [str(round(cup["Footage"] + 0.01)) for cup in cups if is_beyond(cup["Volume"] / average)]
        marks = desktop.colored_parts("Report")
        cups_of = {color: [shown[shown.rfind("\n", 0, start) + 1:start].strip() for mark, start, _ in marks if mark == color]
                   for color in (RED, BLUE, GREEN)}
        self.assertEqual(cups_of[RED], beyond(lambda share: share < 0.8))
        self.assertEqual(cups_of[BLUE], beyond(lambda share: share > 1.2))
        self.assertEqual([shown[start:end] for mark, start, end in marks if mark == GREEN], ["*"])
        for mark, start, end in marks:
            if mark != GREEN:
                self.assertRegex(shown[start:end + 1], r"^\d\.\d\d  \|_+\|\n$")

    def test_a_report_is_saved_as_the_command_line_writes_it(self):
        for open_report, example in [(self.open_report, "pivot-1978.cpd"),
                                     (self.open_report_with_warnings, "solid-set-triangle.ssd")]:
            with self.subTest(example):
                open_report(example)
                for item, name in [("Save As...", "saved.rtf"), ("Save as HTML...", "saved.html")]:
                    expected = command_line("report", "--format", name[-4:].strip("."), "--program-dir", self.folder,
                                            self.test)
                    self.assertEqual(without_its_moment(self.saved(item, name)), without_its_moment(expected))
                    (self.folder / name).unlink()

    def test_a_locked_report_is_copied_from_by_keys_and_menu(self):
        self.open_report()
        before = self.shown()
        for item in ["Undo", "Cut", "Copy", "Paste"]:
            desktop.choose("Edit", item, "Report")
        desktop.press("Report", "text")
        desktop.keys("ctrl+z", "ctrl+x", "ctrl+c", "ctrl+v", "ctrl+a", "ctrl+c")
        self.assertEqual(self.shown(), before)
        desktop.press("Lock", "check box")
        desktop.choose("Edit", "Undo", "Report")
        self.assertEqual(len(desktop.colored_parts("Report")), 7, "the marks are not the user's to undo")
        desktop.keys("ctrl+End")
        desktop.choose("Edit", "Paste", "Report")
        self.assertEqual(self.shown(), before + before)
        self.assertEqual(len(desktop.colored_parts("Report")), 14)

    def test_what_was_typed_into_an_unlocked_report_is_saved_and_a_saved_file_is_opened(self):
        self.open_report()
        desktop.press("Lock", "check box")
        desktop.press("Report", "text")
        desktop.keys("ctrl+Home")
        desktop.type("Typed <50% {here}\n")
        marks = [self.shown()[start:end] for _, start, end in desktop.colored_parts("Report")]
        self.saved("Save As...", "typed.rtf")
        desktop.choose("File", "Refresh Report Computation", "Report")
        self.assertNotIn("Typed", self.shown())
        desktop.keys("ctrl+o")
        desktop.type_into("File name:", str(self.folder / "typed.rtf") + "\n")
        desktop.wait_for_text("Current RTF File: typed.rtf")
        self.assertTrue(self.shown().startswith("Typed <50% {here}\n"))
        self.assertEqual([self.shown()[start:end] for _, start, end in desktop.colored_parts("Report")], marks)

    def test_a_document_makes_the_program_open_nothing(self):
        bait, document, calls = (self.folder / name for name in ["bait.png", "document.rtf", "calls"])
        bait.write_bytes(b"bait")
        document.write_text(
            rf"""{{\rtf1 {{\field{{\*\fldinst INCLUDEPICTURE "{bait}" \\d}}{{\fldrslt a}}}}"""
            rf"""{{\field{{\*\fldinst INCLUDEPICTURE "http://127.0.0.1:9/bait.png" \\d}}{{\fldrslt }}}}"""
            rf"""{{\field{{\*\fldinst HYPERLINK "http://127.0.0.1:9/bait"}}{{\fldrslt b}}}}"""
            rf"""{{\object\objautlink\objupdate{{\*\objdata {bait}}}{{\result c}}}}"""
            rf"""{{\*\template {bait}}}<img src="file://{bait}">}}""", encoding="ascii")
        self.open_report(under=["strace", "-D", "-f", "-qq", "-e", "trace=open,openat,connect", "-o", calls])
        desktop.keys("ctrl+o")
        desktop.type_into("File name:", f"{document}\n")
        desktop.wait_for_text("Current RTF File: document.rtf")
        self.assertEqual(self.shown(), f'abc<img src="file://{bait}">')
        desktop.end()
        made = calls.read_text(encoding="utf-8", errors="replace")
        self.assertIn(str(document), made)
        self.assertNotIn("bait", made)
        self.assertEqual(set(re.findall(r"sa_family=(\w+)", made)), {"AF_UNIX"})

    def test_a_save_that_fails_is_told_and_the_report_stays(self):
        self.open_report(under=["prlimit", "--fsize=4096"])
        before = self.shown()
        for item in ["Save As...", "Save as HTML..."]:
            for place in [self.folder / "new", "/sys/new"]:
                with self.subTest(f"{item} {place}"):
                    desktop.choose("File", item, "Report")
                    desktop.type_into("File name:", f"{place}\n")
                    desktop.find("File Save Error", "alert")
                    desktop.wait_for_text("Error in saving file. Please check drives and disk space.")
                    desktop.press("OK")
                    desktop.wait_until_gone("File Save Error", "alert")
        self.assertEqual(self.shown(), before)
        self.assertEqual(sorted(file.name for file in self.folder.iterdir()), ["pivot-1978.cpd", "soil.dat", "user.usr"])

    def test_the_window_keeps_its_place(self):
        self.open_report()
        desktop.place("Report", left=150, top=120, width=777, height=555)
        place = desktop.place_of("Report")
        self.assertEqual(place[2:], (777, 555))
        for round_ in ["first", "second"]:
            with self.subTest(round_):
                self.end_program()
                self.open_report()
                self.assertEqual(desktop.place_of("Report"), place)
        desktop.place("Report", left=150, top=120, width=300, height=200)
        self.assertEqual(desktop.place_of("Report")[2:], (644, 280), "9660 by 4200 twips")
        place = desktop.place_of("Report")
        self.end_program()
        self.open_report()
        self.assertEqual(desktop.place_of("Report"), place)
        desktop.place("Report", left=10, top=10, width=900, height=700)
        desktop.minimize("Report")
        self.end_program()
        self.open_report()
        self.assertEqual(desktop.place_of("Report"), place, "minimized it leaves what was kept")

    def end_program(self):
        """Closing the main window closes the report, too."""
        desktop.choose("File", "Exit", "ORVEL")
        self.assertEqual(desktop.status(), 0)

    def test_the_windows_lead_to_each_other(self):
        self.open_report()
        desktop.choose("Window", "Data Entry", "Report")
        desktop.find("Center Pivot Data Entry", "dialog")
        desktop.choose("Help", "Instructions", "Center Pivot Data Entry")
        desktop.find("No Help File Available", "dialog")
        desktop.wait_until_active("No Help File Available")
        self.assertTrue(desktop.text_of("Text").startswith("No Help File Available\n\nTo create a help file"))
        desktop.place("No Help File Available", left=760, top=560, width=500, height=400)
        desktop.type_into("Client Name:", "typed beside it")
        self.assertEqual(desktop.text_of("Client Name:"), "typed beside it")
        self.assertTrue(desktop.is_there("No Help File Available", "dialog"))
        desktop.keys("alt+w")
        desktop.press("Yes")
        desktop.wait_until_gone("Center Pivot Data Entry", "dialog")
        desktop.wait_until_gone("No Help File Available", "dialog")
        desktop.wait_until_active("Report")
        desktop.choose("Window", "Main Window", "Report")
        desktop.wait_until_active("ORVEL")
        desktop.choose("Window", "View Report", "ORVEL")
        desktop.wait_until_active("Report")
        desktop.keys("ctrl+w")
        desktop.wait_until_gone("Report", "frame")

    def test_the_viewer_shows_help_and_listings_and_saves_them(self):
        (self.folder / "HELP.RTF").write_bytes(rb"{\rtf1\ansi{\fonttbl{\f0 Arial;}}\f0\fs28\b Set out cups\par}")
        self.open_report()
        desktop.choose("Help", "Instructions", "Report")
        desktop.find("Help & Instructions", "dialog")
        self.assertEqual(desktop.text_of("Text"), "Set out cups\n")
        desktop.choose("File", "Print Data Summary", "ORVEL")
        desktop.find("Center Pivot Data - pivot-1978.cpd", "dialog")
        listing = desktop.text_of("Text")
        self.assertIn("Client Name:                      Alder Creek Farms\n", listing)
        desktop.press("Save", window="Center Pivot Data - pivot-1978.cpd")
        desktop.type_into("File name:", str(self.folder / "listing") + "\n")
        desktop.wait_until_gone("File name:")
        self.assertEqual(lines(command_line("text", self.folder / "listing.rtf").decode()), lines(listing))
        desktop.press("Close", window="Center Pivot Data - pivot-1978.cpd")
        desktop.wait_until_gone("Center Pivot Data - pivot-1978.cpd", "dialog")


class PrintingTest(ReportWindowTest):
    def setUp(self):
        super().setUp()
        self.server = PrintServer()
        self.server.__enter__()
        self.addCleanup(self.server.__exit__)

    @staticmethod
    def print_dialog():
        desktop.choose("File", "Print...", "Report")
        desktop.find("Print Report", "dialog")

    @staticmethod
    def print_now():
        desktop.press("Print", window="Print Report")
        desktop.wait_until_gone("Print Report", "dialog")

    def test_a_report_is_printed_with_margins_of_an_inch(self):
        self.open_report()
        self.print_dialog()
        self.print_now()
        for pdf in [*self.server.jobs(1), self.server.printed()]:
            self.assertEqual(words_of(pdf), self.shown().split(), "no line is lost or doubled")
            sheets = list(pages(pdf))
            self.assertGreaterEqual(len(sheets), 2)
            for number, (width, height, words) in enumerate(sheets):
                left, top, right, bottom, _ = zip(*words)
                self.assertAlmostEqual(min(left), POINTS_PER_INCH, delta=1)
                blank_lines = round((min(top) - POINTS_PER_INCH) / LINE_HEIGHT) if number > 0 else 0
                self.assertAlmostEqual(min(top), POINTS_PER_INCH + blank_lines * LINE_HEIGHT, delta=1)
                self.assertLess(blank_lines, 3)
                self.assertLessEqual(max(right), width - POINTS_PER_INCH + 1)
                self.assertLessEqual(max(bottom), height - POINTS_PER_INCH + 1)

    def test_three_copies_are_three_jobs_and_then_one(self):
        self.open_report()
        self.print_dialog()
        desktop.press("Options >>", window="Print Report")
        desktop.press("Copies:", "spin button", "Print Report")
        desktop.keys("ctrl+a")
        desktop.type("3")
        self.print_now()
        jobs = self.server.jobs(3)
        self.assertEqual(len(jobs), 3)
        for pdf in jobs:
            self.assertEqual(words_of(pdf), self.shown().split())
        self.print_dialog()
        self.print_now()
        self.assertEqual(len(self.server.jobs(4)), 4)

    def test_a_range_of_pages_limits_what_is_printed(self):
        self.open_report()
        self.print_dialog()
        desktop.press("Options >>", window="Print Report")
        desktop.press("Pages from", "radio button", "Print Report")
        desktop.keys("Tab")
        desktop.type("2\t2")
        self.print_now()
        [pdf] = self.server.jobs(1)
        self.assertEqual(len(list(pages(pdf))), 1)
        part, whole = words_of(pdf), self.shown().split()
        first = next(i for i in range(len(whole)) if whole[i:i + 20] == part[:20])
        self.assertEqual(part, whole[first:first + len(part)])
        self.assertGreater(first, 0)
        self.assertLess(first + len(part), len(whole))

    def test_an_empty_text_and_a_cancelled_dialog_print_nothing(self):
        self.open_report()
        self.print_dialog()
        desktop.keys("Escape")
        desktop.wait_until_gone("Print Report", "dialog")
        desktop.choose("File", "Close", "Report")
        self.print_dialog()
        self.print_now()
        desktop.wait_for_text("There is no text to print.")
        desktop.press("OK")
        self.assertEqual(self.server.jobs(0), [])

    def test_a_printer_that_is_gone_is_told_and_the_report_stays(self):
        self.open_report()
        before = self.shown()
        self.print_dialog()
        self.server.stop()
        self.print_now()
        desktop.wait_for_text("The text could not be printed: there is no printer paper any more.")
        desktop.press("OK")
        self.assertEqual(self.shown(), before)
        self.print_dialog()
        self.print_now()
        desktop.find("Printing Error", "alert")
        desktop.press("OK")


if __name__ == "__main__":
    main()
