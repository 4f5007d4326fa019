// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/PercentTimerTable.h"

#include "centerpivot/CenterPivot.h"
#include "core/Arithmetic.h"
#include "core/Masks.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/ReportText.h"
#include "core/RunTimeError.h"
#include "core/Text.h"

#include <cmath>
#include <functional>
#include <set>
#include <string_view>

namespace orvel {

namespace {

constexpr char kMark = '*';

constexpr std::size_t kColumns = 12;
constexpr std::string_view kColumnRule = "============";

// Where the figures of the three columns end, each counted from the one before it.
constexpr std::size_t kSettingColumns = 7;
constexpr std::size_t kHoursColumns = 14;
constexpr std::size_t kInchesColumns = 13;

std::string ColumnWords(std::string_view first, std::string_view second, std::string_view third) {
    const std::string line = PadText(first, kColumns, 'C', ' ') + " " + PadText(second, kColumns, 'C', ' ') +
                             " " + PadText(third, kColumns, 'C', ' ');
    return ReportLine(TrimRight(line));
}

std::string TableHead() {
    std::string head = ReportLine("Percent Timer Analysis");
    head += kCrLf;
    head += ColumnWords("Timer", "Time For", "Average");
    head += ColumnWords("Setting", "Full Circle", "Inches");
    head += ColumnWords("Percent", "Hours", "Applied");
    head += ColumnWords(kColumnRule, kColumnRule, kColumnRule);
    return head;
}

bool IsTime(long double hours) {
    return std::isfinite(hours) && hours > 0;
}

struct Table {
    std::string text; // empty when there is none
    std::size_t mark = 0;
};

// Raises what the time of a full circle raises, and Overflow for a figure that no Single holds.
Table MakeTable() {
    const RevolutionTime time = ComputeRevolutionTime();
    if (!IsTime(time.atFullSpeed) || !IsTime(time.atTestedSetting)) {
        return {};
    }
    const double tested = ToDouble(Program().centerPivotTest.PercentTimer.Whole());
    Table table{TableHead()};
    for (const double setting :
         std::set<double, std::greater<>>{100, 90, 80, 70, 60, 50, 40, 30, 20, 10, tested}) {
        const bool isTested = setting == tested;
        const float hours = StoreSingle(isTested ? time.atTestedSetting : time.atFullSpeed * 100 / setting);
        // The slower the machine, the more water falls.
        const float inches =
            StoreSingle(PivotResults().AverageDepth * static_cast<long double>(tested) / setting);
        table.text += RightColumn(FormatMask(setting, "###"), kSettingColumns);
        if (isTested) {
            table.mark = table.text.size();
        }
        table.text += isTested ? kMark : ' ';
        table.text += RightColumn(FormatMask(hours, "##0.00"), kHoursColumns);
        table.text += ReportLine(RightColumn(FormatMask(inches, "0.00"), kInchesColumns));
    }
    table.text += kCrLf;
    table.text += ReportLine("* denotes tested timer setting");
    table.text += RuleLine();
    return table;
}

} // namespace

void AppendPercentTimerTable(std::string& text, ColorRunTable& runs) {
    try {
        const Table table = MakeTable();
        if (!table.text.empty()) {
            runs.Record(text.size() + table.mark, 1, kGreen);
            text += table.text;
        }
    } catch (const RunTimeError&) { // NOLINT(bugprone-empty-catch)
        // Trapped silently: where no time or figure can be computed, the report has no table.
    }
}

} // namespace orvel
