// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Masks.h"
#include "core/NumberText.h"

#include <benchmark/benchmark.h>

namespace orvel::bench {

namespace {

void Mask(benchmark::State& state, const char* mask) {
    float value = 1234.565F;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(FormatMask(value, mask));
    }
}

void Single(benchmark::State& state, const char* text) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(text);
        benchmark::DoNotOptimize(ToSingle(text));
    }
}

void Plain(benchmark::State& state) {
    float value = 1234.565F;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(PlainText(value));
    }
}

BENCHMARK_CAPTURE(Mask, decimals, "0.00")->Name("FormatMask/0.00");
BENCHMARK_CAPTURE(Mask, thousands, "#,###.00")->Name("FormatMask/#,###.00");
BENCHMARK_CAPTURE(Single, whole, "112")->Name("ToSingle/112");
BENCHMARK_CAPTURE(Single, padded, "  112.5             ")->Name("ToSingle/padded 112.5");
BENCHMARK_CAPTURE(Single, thousands, "1,234.5")->Name("ToSingle/1,234.5");
BENCHMARK_CAPTURE(Single, exponent, "1.17549435e-38")->Name("ToSingle/1.17549435e-38");
BENCHMARK(Plain)->Name("PlainText/1234.565");

} // namespace

} // namespace orvel::bench
