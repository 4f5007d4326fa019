// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/LogicTest.h"
#include "tests/support/OpenedExamples.h"

#include <string>

namespace orvel::testing {

// Reports of the examples, told at a fixed moment by a fixed person.
class ReportTest : public LogicTest, public OpenedExamples {
protected:
    static CenterPivotTest& Pivot() { return Program().centerPivotTest; }
    static SolidSetTest& Solid() { return Program().solidSetTest; }

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
