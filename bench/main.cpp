// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/ui/OwnHome.h"

#include <QApplication>
#include <benchmark/benchmark.h>

// Benchmarks of windows.
int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const orvel::testing::OwnHome home;
    const QApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
