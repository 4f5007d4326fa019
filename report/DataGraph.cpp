// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/DataGraph.h"

#include "centerpivot/CenterPivot.h"
#include "core/Masks.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/ReportText.h"
#include "core/RunTimeError.h"
#include "core/Text.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string_view>
#include <vector>

namespace orvel {

namespace {

constexpr std::string_view kPlaceAndDepth = " Feet   Meas";
constexpr std::size_t kFeetColumns = 5;
constexpr std::size_t kDepthColumns = 7;
constexpr std::string_view kAxis = "  |";
constexpr std::string_view kAverage = "Average";

constexpr int kTicks = 6;
constexpr int kTickColumns = 10;
constexpr int kScaleColumns = kTicks * kTickColumns;

// Inches from one tick to the next: the least of 0.01, 0.02, 0.03, 0.05, 0.10, 0.15, 0.20, 0.30, 0.50, 1.00
// ... by which the scale reaches the largest depth.
double TickInches(float largest) {
    // 0.6 is a little more than that as a Single, and still reached.
    constexpr double kTolerance = 1.000001;
    for (double decade = 1;; decade *= 10) {
        for (const double step : {1.0, 1.5, 2.0, 3.0, 5.0}) {
            const double hundredths = step * decade;
            const bool hasTwoDecimals = hundredths == std::floor(hundredths);
            const double tickInches = hundredths / 100;
            if (hasTwoDecimals && kTicks * tickInches * kTolerance >= static_cast<double>(largest)) {
                return tickInches;
            }
        }
    }
}

float LargestDepth() {
    float largest = std::max(PivotResults().AverageDepth, 0.0F);
    for (const CupDepth& cup : CountedCupDepths()) {
        largest = std::max(largest, cup.Depth);
    }
    return largest;
}

std::string NumberOrMark(float value, std::string_view mask) {
    return std::isfinite(value) ? FormatMask(value, mask) : "?";
}

// A blank timer setting, and one that is no number, is left out.
std::string ScaleTitle() {
    constexpr std::string_view kScale = "Inches of Water";
    try {
        const float timer = ToSingle(Program().centerPivotTest.PercentTimer.TrimInPlace());
        return std::string{kScale}.append(" (").append(FormatMask(timer, "###")).append("% timer setting)");
    } catch (const RunTimeError&) {
        return std::string{kScale};
    }
}

struct Row {
    std::string place;
    std::string value;
    float depth = 0;
    ColorCode color = kNoColor;
};

std::vector<Row> CupRows() {
    std::vector<Row> rows;
    rows.reserve(CountedCupDepths().size());
    for (const CupDepth& cup : CountedCupDepths()) {
        rows.push_back({NumberOrMark(cup.Footage, "0"), FormatMask(cup.Depth, "0.00"), cup.Depth,
                        DeviationColor(cup.Depth, PivotResults().AverageDepth)});
    }
    return rows;
}

// The columns before the axis, and the scale behind it. They are wide enough for every row, so that all bars
// begin below each other.
struct Graph {
    std::size_t feetColumns = kFeetColumns;
    std::size_t depthColumns = kDepthColumns;
    double tickInches = 0;

    Graph(const std::vector<Row>& rows, const Row& average) : tickInches(TickInches(LargestDepth())) {
        for (const Row& row : rows) {
            feetColumns = std::max(feetColumns, row.place.size());
            depthColumns = std::max(depthColumns, row.value.size() + 1);
        }
        const std::size_t needed = kAverage.size() + 1 + average.value.size();
        depthColumns = std::max(depthColumns, needed - std::min(needed, feetColumns));
    }

    [[nodiscard]] std::size_t ColumnsBeforeAxis() const { return feetColumns + depthColumns; }
    [[nodiscard]] std::size_t BarColumn() const { return ColumnsBeforeAxis() + kAxis.size(); }

    // The ticks' numbers, each with its last digit but one above its tick.
    [[nodiscard]] std::string TickNumbers() const {
        std::string line;
        for (int tick = 0; tick <= kTicks; ++tick) {
            const std::string number = FormatMask(tick * tickInches, "0.00");
            const std::size_t end = BarColumn() + static_cast<std::size_t>(tick * kTickColumns) + 2;
            line += RightColumn(number, std::max(end, line.size()) - line.size());
        }
        return ReportLine(line);
    }

    [[nodiscard]] std::string Ticks() const {
        std::string line = PadText(kPlaceAndDepth, ColumnsBeforeAxis(), 'L', ' ').append(kAxis).append("|");
        for (int tick = 1; tick <= kTicks; ++tick) {
            line.append(kTickColumns - 1, '_').append("|");
        }
        return ReportLine(line);
    }

    // The axis and the bar, which ends at the depth; one that is below the scale's zero ends there.
    void AppendBar(std::string& text, float depth) const {
        const double columns = std::round(static_cast<double>(depth) / tickInches * kTickColumns);
        const double drawn = std::clamp(columns, 0.0, double{kScaleColumns});
        text.append(kAxis).append(static_cast<std::size_t>(drawn), '_').append("|");
    }
};

} // namespace

void AppendDataGraph(std::string& text, ColorRunTable& runs) {
    const std::vector<Row> rows = CupRows();
    const float averageDepth = PivotResults().AverageDepth;
    const Row average{std::string{kAverage}, FormatMask(averageDepth, "0.00"), averageDepth};
    const Graph graph(rows, average);

    text += ReportLine("Data and Graph Summary");
    text += kCrLf;
    const std::string title = ScaleTitle();
    const std::size_t titleColumns = std::max(title.size(), std::size_t{kScaleColumns});
    text +=
        ReportLine(std::string(graph.BarColumn(), ' '), TrimRight(PadText(title, titleColumns, 'C', ' ')));
    text += graph.TickNumbers();
    text += graph.Ticks();
    for (const Row& row : rows) {
        text += PadText(row.place, graph.feetColumns, 'L', ' ');
        text += PadText(row.value, graph.depthColumns, 'L', ' ');
        const std::size_t start = text.size() - row.value.size();
        graph.AppendBar(text, row.depth);
        runs.Record(start, text.size() - start, row.color);
        text += kCrLf;
    }
    text += average.place;
    text += RightColumn(average.value, graph.ColumnsBeforeAxis() - average.place.size());
    graph.AppendBar(text, average.depth);
    text += kCrLf;
    text += RuleLine();
}

} // namespace orvel
