// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/CatchCan.h"

#include "core/Arithmetic.h"

#include <cmath>
#include <utility>
#include <vector>

namespace orvel {

namespace {

constexpr double kInchesPerCentimetre = 0.393700787;

// Ascending, by a gap that halves (ties to even: 3 becomes 2, 1 becomes 0); equal depths are not exchanged.
void ShellSort(std::vector<float>& depths) {
    for (std::size_t gap = HalfRoundedToEven(depths.size()); gap >= 1; gap = HalfRoundedToEven(gap)) {
        bool hasExchanged = true;
        while (hasExchanged) {
            hasExchanged = false;
            for (std::size_t i = 0; i + gap < depths.size(); ++i) {
                float& lower = depths[i];
                float& upper = depths[i + gap];
                if (lower > upper) {
                    std::swap(lower, upper);
                    hasExchanged = true;
                }
            }
        }
    }
}

} // namespace

float DepthFromVolume(float volume, float diameter) {
    // The square of a Single is exact in a double.
    const double square = static_cast<double>(diameter) * diameter;
    return StoreSingle(Divide(volume * 4.0L, static_cast<long double>(square) * kPi) * kInchesPerCentimetre);
}

DepthTotals TotalDepths(std::span<const float> depths, float first) {
    DepthTotals totals{first, 0};
    for (const float depth : depths) {
        totals.sum += depth;
        if (totals.maximum < depth) {
            totals.maximum = depth;
        }
    }
    return totals;
}

float ChristiansenUniformity(std::span<const float> depths, float average, long double sum) {
    long double deviation = 0;
    for (const float depth : depths) {
        deviation += std::fabs(static_cast<long double>(depth) - average);
    }
    return StoreSingle((1.0L - Divide(deviation, sum)) * 100.0L);
}

float LowQuarterUniformity(std::span<const float> depths, float average) {
    std::vector<float> sorted(depths.begin(), depths.end());
    ShellSort(sorted);
    const long double quarter = static_cast<long double>(depths.size()) / 4.0L;
    const std::int16_t lowest = RoundToInteger(quarter);
    long double sum = 0;
    for (std::int16_t i = 0; i < lowest; ++i) {
        sum += sorted[static_cast<std::size_t>(i)];
    }
    return StoreSingle(Divide(Divide(sum, quarter), average) * 100.0L);
}

} // namespace orvel
