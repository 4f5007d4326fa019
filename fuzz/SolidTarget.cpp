// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "fuzz/FieldMutator.h"
#include "fuzz/Fuzz.h"
#include "fuzz/RecordFile.h"
#include "fuzz/TestFileTrial.h"

#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/RecordLayout.h"
#include "report/RepresentativeLayout.h"
#include "solidset/SolidSet.h"

#include <algorithm>
#include <cstddef>

// Solid-set tests. An input is a file of one.
namespace orvel::fuzz {

namespace {

using enum ErrorNumber;

// The depths on the grid: all rows are as long as the line with the numbers of the X axis.
void TryLayout(std::string_view report) {
    std::string text;
    ColorRunTable runs;
    AppendRepresentativeLayout(text, runs);
    Require(report.find(text) != std::string_view::npos, "the report has the layout");
    RequireRunsInText(runs, text);

    const std::vector<std::string> lines = Lines(text);
    constexpr std::size_t kNumbers = 3;
    Require(lines.size() > kNumbers && lines[kNumbers].starts_with("Y Axis "), "the layout has both axes");
    std::size_t rows = 0;
    for (std::size_t i = kNumbers + 1; i < lines.size(); ++i) {
        if (!lines[i].empty() && lines[i].find('+') == std::string::npos) {
            Require(lines[i].size() == lines[kNumbers].size(), "depths are below each other");
            ++rows;
        }
    }
    const int numberY = ToInteger(Program().solidSetTest.NumberY.Whole());
    Require(rows == static_cast<std::size_t>(std::min(numberY, 300)),
            "every row up to the 300th point is there");
}

// "1,2,0.69": x, y, depth.
void TrySummary(const std::string& summary) {
    const std::vector<std::string> lines = Lines(summary);
    const int numberX = ToInteger(Program().solidSetTest.NumberX.Whole());
    const int numberY = ToInteger(Program().solidSetTest.NumberY.Whole());
    std::size_t point = 0;
    for (int x = 1; x <= numberX; ++x) {
        for (int y = 1; y <= numberY; ++y) {
            Require(point < lines.size(), "a summary has a line for each point");
            const std::string& line = lines[point++];
            const std::string place = std::to_string(x) + "," + std::to_string(y) + ",";
            Require(line.starts_with(place) &&
                        IsWrittenWithTwoDecimals(line.substr(place.size()),
                                                 SolidResults().SolidSetDepths.at(point)),
                    "a line has the point's place and depth");
        }
    }
    Require(point == lines.size(), "a summary has no line more");
}

const TestFileKindTried kTried = {
    .name = kSolidSet,
    .countName = "SolidSetCupCount",
    .fields = kSolidSetFields,
    .record = [] { return BytesOf(Program().solidSetTest); },
    .countCups = [] { return CupsBeforeTwoZeros(Program().solidSetTest.Gauges); },
    .checkErrors = {Overflow, SubscriptOutOfRange, TypeMismatch},
    .reportErrors = {},
    .summaryErrors = {Overflow, SubscriptOutOfRange, TypeMismatch},
    .tryGraphs = TryLayout,
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
