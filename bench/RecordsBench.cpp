// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "bench/Samples.h"
#include "cli/Json.h"
#include "cli/RecordJson.h"
#include "core/RecordFiles.h"
#include "tests/support/TestFiles.h"

#include <benchmark/benchmark.h>
#include <cstdint>

namespace orvel::bench {

namespace {

template <class Test>
Test Sample();

template <>
CenterPivotTest Sample() {
    return PivotSample(kMostCups);
}

template <>
SolidSetTest Sample() {
    return SolidSample(12, 25);
}

template <class Test>
void Read(benchmark::State& state) {
    const testing::TemporaryFolder folder;
    WriteTest(folder / "test", Sample<Test>());
    for (auto _ : state) {
        benchmark::DoNotOptimize(ReadTest<Test>(folder / "test"));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(sizeof(Test)));
}

// Down to the disk, as a test file is saved.
template <class Test>
void Write(benchmark::State& state) {
    const testing::TemporaryFolder folder;
    const auto test = Sample<Test>();
    for (auto _ : state) {
        WriteTest(folder / "test", test);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(sizeof(Test)));
}

template <class Test>
void Dump(benchmark::State& state) {
    const auto test = Sample<Test>();
    for (auto _ : state) {
        benchmark::DoNotOptimize(cli::JsonDocument(cli::DumpTest(test)));
    }
}

template <class Test>
void Build(benchmark::State& state) {
    const std::string text = cli::JsonDocument(cli::DumpTest(Sample<Test>()));
    Test test;
    for (auto _ : state) {
        cli::BuildTest(cli::ParseJson(text), test);
        benchmark::DoNotOptimize(test);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

BENCHMARK(Read<CenterPivotTest>)->Name("ReadTest/pivot");
BENCHMARK(Read<SolidSetTest>)->Name("ReadTest/solid");
BENCHMARK(Write<CenterPivotTest>)->Name("WriteTest/pivot")->UseRealTime();
BENCHMARK(Write<SolidSetTest>)->Name("WriteTest/solid")->UseRealTime();
BENCHMARK(Dump<CenterPivotTest>)->Name("Dump/pivot");
BENCHMARK(Dump<SolidSetTest>)->Name("Dump/solid");
BENCHMARK(Build<CenterPivotTest>)->Name("Build/pivot");
BENCHMARK(Build<SolidSetTest>)->Name("Build/solid");

} // namespace

} // namespace orvel::bench
