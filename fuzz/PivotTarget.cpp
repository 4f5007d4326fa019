// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "fuzz/FieldMutator.h"
#include "fuzz/Fuzz.h"
#include "fuzz/RecordFile.h"
#include "fuzz/TestFileTrial.h"

#include "centerpivot/CenterPivot.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/RecordLayout.h"
#include "report/DataGraph.h"
#include "report/PercentTimerTable.h"

#include <algorithm>
#include <cstddef>

// Center-pivot tests. An input is a file of one.
namespace orvel::fuzz {

namespace {

using enum ErrorNumber;

std::size_t CupCount() {
    return static_cast<std::size_t>(PivotResults().CupCount);
}

// Each cup's line: its place, its depth, the axis and a bar up to the scale's end.
void TryDataGraph(std::string_view report) {
    std::string text;
    ColorRunTable runs;
    AppendDataGraph(text, runs);
    Require(report.find(text) != std::string_view::npos, "the report has the graph");
    RequireRunsInText(runs, text);

    const std::vector<std::string> lines = Lines(text);
    constexpr std::size_t kBefore = 5;
    constexpr std::size_t kWidest = 100;
    constexpr std::size_t kLongestBar = 60;
    constexpr std::string_view kAxis = "  |";
    Require(lines.size() == kBefore + CupCount() + 2, "the graph has a line for each cup, and the average");
    const std::size_t axis = lines[kBefore - 1].find(kAxis);
    Require(axis <= kWidest, "the graph has an axis");
    for (std::size_t i = kBefore; i + 1 < lines.size(); ++i) {
        const std::string_view line = lines[i];
        Require(line.size() > axis + kAxis.size() && line.substr(axis, kAxis.size()) == kAxis,
                "all axes are below each other");
        const std::string_view bar = line.substr(axis + kAxis.size());
        Require(bar.size() <= kLongestBar + 1 && bar.find_first_not_of('_') == bar.size() - 1 &&
                    bar.ends_with('|'),
                "a bar ends on the scale");
    }
}

void TryTimerTable(std::string_view report) {
    std::string text;
    ColorRunTable runs;
    AppendPercentTimerTable(text, runs);
    Require(report.find(text) != std::string_view::npos, "the report has the table");
    RequireRunsInText(runs, text);
    const bool isMade = !text.empty();
    Require((report.find("\nPercent Timer Analysis\r\n") != std::string_view::npos) >= isMade &&
                runs.ColorRunCount == (isMade ? 1 : 0),
            "a table has a mark");
    if (isMade) {
        Require(text[static_cast<std::size_t>(runs.ColorRunStart[1])] == '*', "the mark is a star");
        constexpr std::size_t kAround = 9;
        const std::size_t settings = Lines(text).size() - kAround;
        Require(settings == 10 || settings == 11, "the table has ten settings and the tested one");
    }
}

void TryGraphs(std::string_view report) {
    TryDataGraph(report);
    TryTimerTable(report);
}

// "1,30,0.50": number, distance, depth.
void TrySummary(const std::string& summary) {
    const std::vector<std::string> lines = Lines(summary);
    Require(lines.size() == CupCount(), "a summary has a line for each cup");
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string& line = lines[i];
        const std::size_t first = line.find(',');
        const std::size_t second = line.find(',', first + 1);
        Require(second != std::string::npos && line.find(',', second + 1) == std::string::npos,
                "a line has three fields");
        const CupDepth& cup = CupDepths()[i + 1];
        Require(line.substr(0, first) == std::to_string(i + 1), "cups are numbered");
        Require(ToSingle(line.substr(first + 1, second - first - 1)) == cup.Footage,
                "the distance reads back");
        Require(IsWrittenWithTwoDecimals(line.substr(second + 1), cup.Depth), "the depth has two decimals");
    }
}

const TestFileKindTried kTried = {
    .name = kCenterPivot,
    .countName = "CupCount",
    .fields = kCenterPivotFields,
    .record = [] { return BytesOf(Program().centerPivotTest); },
    .countCups = [] { return CupsBeforeTwoZeros(Program().centerPivotTest.Gauges); },
    .checkErrors = {Overflow, SubscriptOutOfRange},
    .reportErrors = {Overflow, SubscriptOutOfRange, DivisionByZero, TypeMismatch},
    .summaryErrors = {Overflow},
    .tryGraphs = TryGraphs,
    .trySummary = TrySummary,
};

} // namespace

bool Try(std::string_view input) {
    TestFileTrial(kTried, input).Run();
    return true;
}

std::span<const Field> FieldsOfInput() {
    return kTried.fields;
}

} // namespace orvel::fuzz
