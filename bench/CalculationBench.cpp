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

void OpenPivot(int cups) {
    Open(PivotSample(cups));
}

// On a grid of two rows, so that any even number of cups has one.
void OpenSolid(int cups) {
    Open(SolidSample(2, cups / 2));
}

void Repeat(benchmark::State& state, void (*open)(int cups), void (*work)()) {
    const Surroundings surroundings;
    open(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        work();
    }
}

void CountPivot() {
    benchmark::DoNotOptimize(CountCups(Program().centerPivotTest.Gauges));
}

void CountSolid() {
    benchmark::DoNotOptimize(CountCups(Program().solidSetTest.Gauges));
}

void CheckPivot() {
    benchmark::DoNotOptimize(CheckCenterPivotData());
}

void CheckSolid() {
    benchmark::DoNotOptimize(SolidSetDataCheck());
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(10)->Arg(60)->Arg(kMostCups);
}

// What the benchmarks are called.
constexpr auto Count = Repeat;
constexpr auto Calculate = Repeat;
constexpr auto Check = Repeat;

BENCHMARK_CAPTURE(Count, pivot, OpenPivot, CountPivot)->Apply(Sizes);
BENCHMARK_CAPTURE(Count, solid, OpenSolid, CountSolid)->Apply(Sizes);
BENCHMARK_CAPTURE(Calculate, pivot, OpenPivot, CalculateCenterPivot)->Apply(Sizes);
BENCHMARK_CAPTURE(Calculate, solid, OpenSolid, CalculateSolidSet)->Apply(Sizes);
BENCHMARK_CAPTURE(Check, pivot, OpenPivot, CheckPivot)->Apply(Sizes);
BENCHMARK_CAPTURE(Check, solid, OpenSolid, CheckSolid)->Apply(Sizes);

} // namespace

} // namespace orvel::bench
