// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "centerpivot/CenterPivot.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "solidset/SolidSet.h"
#include "tests/support/CompleteUserSettings.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <string>

namespace orvel::testing {

// Reports of the examples, told at a fixed moment by a fixed person.
class ReportTest : public LogicTest {
protected:
    ReportTest() {
        ResetCenterPivot();
        ResetSolidSet();
        Program().userSettings = CompleteUserSettings();
    }

    ~ReportTest() override {
        ResetCenterPivot();
        ResetSolidSet();
    }

    static CenterPivotTest& Pivot() { return Program().centerPivotTest; }
    static SolidSetTest& Solid() { return Program().solidSetTest; }

    static void OpenPivot() {
        Program().centerPivotFile = Example("pivot-1978.cpd");
        Pivot() = ReadTest<CenterPivotTest>(Program().centerPivotFile);
    }

    static void OpenSolid(const std::string& name) {
        Program().solidSetFile = Example(name);
        Solid() = ReadTest<SolidSetTest>(Program().solidSetFile);
    }

    // The warnings about single catches that an example draws.
    void ExpectWarnings(const std::string& lines) {
        messageBox.Expect({"Potention Input Problems Were Found.\r\n\r\n" + lines +
                               "\r\n\r\nThese May Not Be Errors, But Should Be Checked.",
                           "Possible Errors in Data", Buttons::Ok, Icon::Critical});
    }

    void Expect1997Warnings() {
        ExpectWarnings("The Value For Gauge 7 May be Low (<50% of Average).\r\n"
                       "The Value For Gauge 10 May be Low (<50% of Average).\r\n");
    }
};

// The colour runs of a report as lines, "3 start+length 'marked text'", for golden files and messages.
template <class Table>
std::string RunsText(const Table& table, const std::string& text) {
    std::string lines;
    for (std::size_t i = 1; i < table.ColorRunCode.size(); ++i) {
        if (table.ColorRunCode[i] != 0) {
            const auto start = static_cast<std::size_t>(table.ColorRunStart[i]);
            const auto length = static_cast<std::size_t>(table.ColorRunLength[i]);
            lines += std::to_string(table.ColorRunCode[i]) + " " + std::to_string(start) + "+" +
                     std::to_string(length) + " '" + text.substr(start, length) + "'\n";
        }
    }
    return lines;
}

} // namespace orvel::testing
