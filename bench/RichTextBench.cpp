// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "bench/Samples.h"
#include "report/MemoryRichTextBox.h"
#include "report/ReportBuilder.h"
#include "report/RtfReader.h"
#include "report/RtfWriter.h"

#include <benchmark/benchmark.h>
#include <cstdint>
#include <string>

namespace orvel::bench {

namespace {

RichDocument Report() {
    const Surroundings surroundings;
    Open(PivotSample(kMostCups));
    MemoryRichTextBox box;
    ReportBuilder(box).BuildCenterPivotReport();
    return box.Document();
}

void WriteReport(benchmark::State& state) {
    const RichDocument report = Report();
    for (auto _ : state) {
        benchmark::DoNotOptimize(WriteRtf(report));
    }
}

void ReadReport(benchmark::State& state) {
    const std::string file = WriteRtf(Report());
    for (auto _ : state) {
        benchmark::DoNotOptimize(ReadRtf(file));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file.size()));
}

void Write(benchmark::State& state) {
    const RichDocument document = RichTextSample(static_cast<std::size_t>(state.range(0)));
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::string file = WriteRtf(document);
        bytes += file.size();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}

void Read(benchmark::State& state) {
    const std::string file = WriteRtf(RichTextSample(static_cast<std::size_t>(state.range(0))));
    for (auto _ : state) {
        benchmark::DoNotOptimize(ReadRtf(file));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file.size()));
}

constexpr int kMegabyte = 1'000'000;

BENCHMARK(WriteReport)->Name("WriteRtf/report");
BENCHMARK(ReadReport)->Name("ReadRtf/report");
BENCHMARK(Write)->Name("WriteRtf")->Arg(kMegabyte)->Arg(50 * kMegabyte)->Unit(benchmark::kMillisecond);
BENCHMARK(Read)->Name("ReadRtf")->Arg(kMegabyte)->Arg(50 * kMegabyte)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace orvel::bench
