// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "bench/Samples.h"
#include "centerpivot/CenterPivot.h"
#include "centerpivot/CenterPivotChecks.h"
#include "core/CatchCan.h"
#include "core/ProgramState.h"
#include "solidset/SolidSet.h"
#include "solidset/SolidSetChecks.h"

#include <benchmark/benchmark.h>

namespace orvel::bench {

namespace {

// Cups on a grid of two rows, so that any even number of them has one.
void OpenPivot(const benchmark::State& state) {
    Open(PivotSample(static_cast<int>(state.range(0))));
}

void OpenSolid(const benchmark::State& state) {
    Open(SolidSample(2, static_cast<int>(state.range(0)) / 2));
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(10)->Arg(60)->Arg(kMostCups);
}

void CountPivot(benchmark::State& state) {
    const Surroundings surroundings;
    OpenPivot(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(CountCups(Program().centerPivotTest.Gauges));
    }
}

void CountSolid(benchmark::State& state) {
    const Surroundings surroundings;
    OpenSolid(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(CountCups(Program().solidSetTest.Gauges));
    }
}

void CalculatePivot(benchmark::State& state) {
    const Surroundings surroundings;
    OpenPivot(state);
    for (auto _ : state) {
        CalculateCenterPivot();
        benchmark::DoNotOptimize(PivotResults());
    }
}

void CalculateSolid(benchmark::State& state) {
    const Surroundings surroundings;
    OpenSolid(state);
    for (auto _ : state) {
        CalculateSolidSet();
        benchmark::DoNotOptimize(SolidResults());
    }
}

void CheckPivot(benchmark::State& state) {
    const Surroundings surroundings;
    OpenPivot(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(CheckCenterPivotData());
    }
}

void CheckSolid(benchmark::State& state) {
    const Surroundings surroundings;
    OpenSolid(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(SolidSetDataCheck());
    }
}

BENCHMARK(CountPivot)->Name("Count/pivot")->Apply(Sizes);
BENCHMARK(CountSolid)->Name("Count/solid")->Apply(Sizes);
BENCHMARK(CalculatePivot)->Name("Calculate/pivot")->Apply(Sizes);
BENCHMARK(CalculateSolid)->Name("Calculate/solid")->Apply(Sizes);
BENCHMARK(CheckPivot)->Name("Check/pivot")->Apply(Sizes);
BENCHMARK(CheckSolid)->Name("Check/solid")->Apply(Sizes);

} // namespace

} // namespace orvel::bench
