# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Whether the formulas of the instructions give what the program computes: test_formulas.py PROJECT COMMAND-LINE"""

import json
import math
import pathlib
import re
import subprocess
import sys
import unittest

PROJECT = pathlib.Path(sys.argv.pop(1))
COMMAND_LINE = sys.argv.pop(1)
SOURCE = " ".join((PROJECT / "help/help.md").read_text(encoding="utf-8").split())


def command_line(command, example):
    return json.loads(subprocess.run([COMMAND_LINE, *command, PROJECT / "examples" / example], check=True,
                                     capture_output=True).stdout)


def formula(figure, number=0):
    """The formula that the instructions give for a figure."""
    entry = re.search(rf"- \*\*{re.escape(figure)}\*\*(.*?)(?: - \*\*|## )", SOURCE).group(1)
    return re.findall(r"`([^`]*)`", entry)[number]


def value_of(text, terms):
    """What a formula gives, its words being terms with values."""
    words = sorted(terms, key=len, reverse=True)
    text = re.sub("|".join(rf"(?<!\w){re.escape(word)}(?!\w)" for word in words), lambda word: repr(terms[word.group()]), text)
    return eval(text.replace(" x ", " * "), {"__builtins__": {}})  # pylint: disable=eval-used


class FormulasTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.test = command_line(["dump"], "pivot-1978.cpd")
        cls.results = command_line(["results", "--json"], "pivot-1978.cpd")
        cls.depths = [cup["Depth"] for cup in cls.results["CupDepths"]]
        cls.distances = [cup["Footage"] for cup in cls.results["CupDepths"]]

    def number(self, field):
        return float(self.test[field])

    def expect(self, figure, terms, expected):
        self.assertTrue(math.isclose(value_of(formula(figure), terms), expected, rel_tol=2e-5), figure)

    def time_for_full_circle(self):
        return value_of(formula("Time For Full Circle"), {
            "distance to last tower": self.number("DistanceToTower"), "feet of travel": self.number("TravelSpeedFeet"),
            "minutes": self.number("TravelSpeedMinutes"), "seconds": self.number("TravelSpeedSeconds")})

    def test_depths(self):
        self.expect("Depth", {"volume": self.test["Gauges"][0]["Volume"], "D": self.number("GuageDiameter")}, self.depths[0])
        self.expect("Average Depth", {"sum of the depths": sum(self.depths), "number of cups": len(self.depths)},
                    self.results["AverageDepth"])

    def test_uniformity(self):
        average, cups = self.results["AverageDepth"], len(self.depths)
        self.expect("Christiansen Method CU",
                    {"sum of |depth - average|": sum(abs(depth - average) for depth in self.depths),
                     "sum of depths": sum(self.depths)}, self.results["ChristiansenCU"])
        sums = {"sum of r x depth": sum(r * depth for r, depth in zip(self.distances, self.depths)),
                "sum of r": sum(self.distances)}
        mean = value_of(formula("Heermann and Hein Method CU", 1), sums)
        sums["sum of r x |depth - m|"] = sum(r * abs(depth - mean) for r, depth in zip(self.distances, self.depths))
        self.expect("Heermann and Hein Method CU", sums, self.results["HeermannHeinCU"])
        self.expect("Low Quarter Distribution",
                    {"sum of the lowest quarter": sum(sorted(self.depths)[:round(cups / 4)]), "cups": cups, "average": average},
                    self.results["LowQuarterDU"])

    def test_acres_flow_and_efficiency(self):
        radius = sum(map(self.number, ("DistanceToTower", "LengthOverhang", "EndGunRadius")))
        self.expect("Irrigated Acres", {"r": radius}, self.results["IrrigatedAcres"])
        self.expect("Calculated Flow Rate",
                    {"acres": self.results["IrrigatedAcres"], "average depth": self.results["AverageDepth"],
                     "time for full circle": self.time_for_full_circle()}, self.results["CalculatedFlowRate"])
        self.expect("Water Application Efficiency",
                    {"calculated flow rate": self.results["CalculatedFlowRate"],
                     "entered flow rate": self.number("MeasuredFlowRate")}, 100 * self.results["ApplicationEfficiency"])

    def test_application_rates(self):
        self.expect("Application Rate at Last Tower",
                    {"GPM": self.number("MeasuredFlowRate"), "distance to last tower": self.number("DistanceToTower"),
                     "overhang": self.number("LengthOverhang"), "radius of last sprinkler": self.number("RadLastSprinkler")},
                    self.results["ApplicationRateAtLastTower"])
        solid = command_line(["results", "--json"], "solid-set-1997.ssd")
        minutes = float(command_line(["dump"], "solid-set-1997.ssd")["Duration"])
        self.expect("Application Rate", {"average depth": solid["SolidSetAverageDepth"], "minutes": minutes},
                    solid["SolidSetApplicationRate"])

    def test_the_system_length_and_the_timer_table(self):
        report = subprocess.run([COMMAND_LINE, "report", PROJECT / "examples/pivot-1978.cpd"], check=True, capture_output=True,
                                text=True).stdout.replace("\r", "")
        length = value_of(formula("System Length"), {"distance to last tower": self.number("DistanceToTower"),
                                                     "overhang": self.number("LengthOverhang")})
        self.assertIn(f"System Length {length:,.0f}\n", report)
        table = re.findall(r"^ +(\d+)\*? +(\d+\.\d\d) +(\d+\.\d\d)$", report, re.MULTILINE)
        self.assertEqual(len(table), 10)
        for setting, hours, depth in table:
            terms = {"time for full circle": self.time_for_full_circle(), "average depth": self.results["AverageDepth"],
                     "tested setting": self.number("PercentTimer"), "setting": float(setting)}
            self.assertAlmostEqual(value_of(formula("Percent Timer Analysis"), terms), float(hours), delta=0.006)
            self.assertAlmostEqual(value_of(formula("Percent Timer Analysis", 1), terms), float(depth), delta=0.006)


if __name__ == "__main__":
    unittest.main(verbosity=2)
