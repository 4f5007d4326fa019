// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RepresentativeLayout.h"

#include "core/Masks.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/ReportText.h"
#include "core/Text.h"
#include "solidset/SolidSet.h"

#include <algorithm>
#include <string_view>

namespace orvel {

namespace {

// "Y Axis"; behind it stand the heads on the left, then the cups.
constexpr std::size_t kNumberColumns = 6;
constexpr std::size_t kLeastCupColumns = 6;

constexpr int kMostPoints = MeasurementList<SolidSetGauge>::kLast;

// What of the X by Y grid is drawn: every point up to the 300th has its place.
struct Grid {
    int drawnX = 0;
    int drawnY = 0;
    int numberY = 0; // of the test: it numbers the points
    std::size_t cupColumns = kLeastCupColumns;

    [[nodiscard]] int Point(int x, int y) const { return (x - 1) * numberY + y; }
    [[nodiscard]] std::size_t CupsWidth() const { return static_cast<std::size_t>(drawnX) * cupColumns; }
};

// Empty for a point without a counted cup.
std::string DepthText(int point) {
    const auto depths = SolidSetCountedDepths();
    return point <= std::ssize(depths) ? FormatMask(depths[static_cast<std::size_t>(point - 1)], "0.00") : "";
}

Grid GridOfTest() {
    const SolidSetTest& test = Program().solidSetTest;
    const int numberX = ToInteger(test.NumberX.Whole());
    const int numberY = ToInteger(test.NumberY.Whole());
    Grid grid;
    if (numberX > 0 && numberY > 0) {
        const int columnsUpToTheLastPoint = (kMostPoints + numberY - 1) / numberY;
        grid = {std::min(numberX, columnsUpToTheLastPoint), std::min(numberY, kMostPoints), numberY};
    }
    for (int point = 1; point <= std::min(numberX * numberY, kMostPoints); ++point) {
        grid.cupColumns = std::max(grid.cupColumns, DepthText(point).size() + 1);
    }
    return grid;
}

// The cups lie between the heads: four of a square, or three of a triangle whose third is in the middle of
// the far side.
std::string NearHeads(const Grid& grid) {
    return ReportLine(std::string(kNumberColumns, ' '), "+", std::string(grid.CupsWidth(), ' ') + "+");
}

std::string FarHeads(const Grid& grid, bool isSquare) {
    return isSquare ? NearHeads(grid)
                    : ReportLine(std::string(kNumberColumns + (grid.CupsWidth() + 1) / 2, ' '), "+");
}

std::string AxisNumbers(const Grid& grid) {
    std::string line = "Y Axis ";
    for (int x = 1; x <= grid.drawnX; ++x) {
        line += RightColumn(std::to_string(x), grid.cupColumns);
    }
    return ReportLine(line);
}

void AppendRow(std::string& text, ColorRunTable& runs, const Grid& grid, int y) {
    text += RightColumn(std::to_string(y), kNumberColumns) + " ";
    for (int x = 1; x <= grid.drawnX; ++x) {
        const std::string depth = DepthText(grid.Point(x, y));
        text += RightColumn(depth, grid.cupColumns);
        if (!depth.empty()) {
            const float value = SolidSetCountedDepths()[static_cast<std::size_t>(grid.Point(x, y) - 1)];
            runs.Record(text.size() - depth.size(), depth.size(),
                        DeviationColor(value, SolidResults().SolidSetAverageDepth));
        }
    }
    text += kCrLf;
}

} // namespace

void AppendRepresentativeLayout(std::string& text, ColorRunTable& runs) {
    const Grid grid = GridOfTest();
    const std::string_view layout = Program().solidSetTest.Layout.Whole();
    const bool isSquare = layout == "S";
    const bool hasHeads = isSquare || layout == "T";
    text += ReportLine("Uniformity Analysis - Representative Layout");
    text += kCrLf;
    text += ReportLine(std::string(kNumberColumns, ' '), " X Axis");
    text += AxisNumbers(grid);
    text += hasHeads ? NearHeads(grid) : "";
    for (int y = 1; y <= grid.drawnY; ++y) {
        AppendRow(text, runs, grid, y);
    }
    if (hasHeads) {
        text += FarHeads(grid, isSquare);
        text += kCrLf;
        text += ReportLine("+ denotes relative sprinkler head location");
    }
}

} // namespace orvel
