// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "bench/Samples.h"
#include "centerpivot/CenterPivot.h"
#include "centerpivot/CenterPivotListing.h"
#include "centerpivot/CenterPivotReport.h"
#include "centerpivot/CenterPivotSummary.h"
#include "report/DataGraph.h"
#include "report/HtmlReport.h"
#include "report/MemoryRichTextBox.h"
#include "report/PercentTimerTable.h"
#include "report/ReportBuilder.h"
#include "report/RepresentativeLayout.h"
#include "solidset/SolidSet.h"
#include "solidset/SolidSetListing.h"
#include "solidset/SolidSetReport.h"
#include "solidset/SolidSetSummary.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace orvel::bench {

namespace {

void OpenPivot() {
    Open(PivotSample(kMostCups));
    CalculateCenterPivot();
}

void OpenSolid() {
    Open(SolidSample(12, 25));
    CalculateSolidSet();
}

// Raises std::logic_error when there is no report to measure.
std::string BuiltReport(void (ReportBuilder::*build)()) {
    MemoryRichTextBox box;
    (ReportBuilder(box).*build)();
    std::string report = box.Text();
    if (report == kReportNotCreated) {
        throw std::logic_error(report);
    }
    return report;
}

std::string PivotReport() {
    return BuiltReport(&ReportBuilder::BuildCenterPivotReport);
}

std::string SolidReport() {
    return BuiltReport(&ReportBuilder::BuildSolidSetReport);
}

void Make(benchmark::State& state, void (*open)(), std::string (*text)()) {
    const Surroundings surroundings;
    open();
    for (auto _ : state) {
        benchmark::DoNotOptimize(text());
    }
}

void Graph(benchmark::State& state, void (*open)(), void (*append)(std::string& text, ColorRunTable& runs)) {
    const Surroundings surroundings;
    open();
    for (auto _ : state) {
        std::string text;
        ColorRunTable runs;
        append(text, runs);
        benchmark::DoNotOptimize(text);
    }
}

// The physical limit of making a report's text, a thousand times.
void CopyReport(benchmark::State& state, void (*open)(), std::string (*text)()) {
    constexpr int kTimes = 1000;
    const Surroundings surroundings;
    open();
    const std::string report = text();
    std::string copy(report.size(), ' ');
    for (auto _ : state) {
        for (int i = 0; i < kTimes; ++i) {
            std::ranges::copy(report, copy.begin());
            benchmark::DoNotOptimize(copy.data());
            benchmark::ClobberMemory();
        }
    }
    state.SetBytesProcessed(state.iterations() * kTimes * static_cast<std::int64_t>(report.size()));
}

void Html(benchmark::State& state, void (*open)(), std::string (*text)()) {
    const Surroundings surroundings;
    open();
    const std::string report = text();
    for (auto _ : state) {
        benchmark::DoNotOptimize(HtmlOfReport(report));
    }
}

// What the benchmarks are called.
constexpr auto Section = Make;
constexpr auto Report = Make;
constexpr auto Export = Make;
constexpr auto Listing = Make;

BENCHMARK_CAPTURE(Section, pivot_heading, OpenPivot, CenterPivotHeadingText);
BENCHMARK_CAPTURE(Section, pivot_field, OpenPivot, CenterPivotFieldText);
BENCHMARK_CAPTURE(Section, pivot_system, OpenPivot, CenterPivotSystemText);
BENCHMARK_CAPTURE(Section, pivot_results, OpenPivot, CenterPivotResultsText);
BENCHMARK_CAPTURE(Section, pivot_application_rate, OpenPivot, CenterPivotApplicationRateText);
BENCHMARK_CAPTURE(Section, pivot_uniformity, OpenPivot, CenterPivotUniformityText);
BENCHMARK_CAPTURE(Section, pivot_comments, OpenPivot, CenterPivotCommentsText);
BENCHMARK_CAPTURE(Graph, pivot_graph, OpenPivot, AppendDataGraph);
BENCHMARK_CAPTURE(Graph, pivot_percent_timer, OpenPivot, AppendPercentTimerTable);
BENCHMARK_CAPTURE(Section, solid_heading, OpenSolid, SolidSetHeadingText);
BENCHMARK_CAPTURE(Section, solid_field, OpenSolid, SolidSetFieldText);
BENCHMARK_CAPTURE(Section, solid_system, OpenSolid, SolidSetSystemText);
BENCHMARK_CAPTURE(Section, solid_results, OpenSolid, SolidSetResultsText);
BENCHMARK_CAPTURE(Graph, solid_layout, OpenSolid, AppendRepresentativeLayout);
BENCHMARK_CAPTURE(Section, solid_uniformity, OpenSolid, SolidSetUniformityText);
BENCHMARK_CAPTURE(Section, solid_comments, OpenSolid, SolidSetCommentsText);
BENCHMARK_CAPTURE(Report, pivot, OpenPivot, PivotReport);
BENCHMARK_CAPTURE(Report, solid, OpenSolid, SolidReport);
BENCHMARK_CAPTURE(CopyReport, pivot, OpenPivot, PivotReport);
BENCHMARK_CAPTURE(CopyReport, solid, OpenSolid, SolidReport);
BENCHMARK_CAPTURE(Html, pivot, OpenPivot, PivotReport);
BENCHMARK_CAPTURE(Html, solid, OpenSolid, SolidReport);
BENCHMARK_CAPTURE(Export, pivot, OpenPivot, BuildCenterPivotSummary);
BENCHMARK_CAPTURE(Export, solid, OpenSolid, BuildSolidSetSummary);
BENCHMARK_CAPTURE(Listing, pivot, OpenPivot, CenterPivotListingText);
BENCHMARK_CAPTURE(Listing, solid, OpenSolid, SolidSetListingText);

} // namespace

} // namespace orvel::bench
