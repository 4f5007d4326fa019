// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT

// The computation alone, from records in memory to all results: bench_computation FILE... prints the seconds
// it took for all of the center-pivot tests, and the sum of their low-quarter uniformities, so that two
// programs that should compute the same can be compared.

#include "bench/Samples.h"
#include "centerpivot/CenterPivot.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

int main(int argc, char** argv) {
    const orvel::bench::Surroundings surroundings;
    std::vector<orvel::CenterPivotTest> tests;
    for (int i = 1; i < argc; ++i) {
        tests.push_back(orvel::ReadTest<orvel::CenterPivotTest>(argv[i]));
    }
    double sum = 0;
    const auto begin = std::chrono::steady_clock::now();
    for (const orvel::CenterPivotTest& test : tests) {
        orvel::ResetCenterPivot();
        orvel::Program().centerPivotTest = test;
        orvel::CalculateCenterPivot();
        sum += orvel::PivotResults().LowQuarterDU;
    }
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
    (void)std::printf("%.9f %.3f\n", seconds.count(), sum);
    return EXIT_SUCCESS;
}
