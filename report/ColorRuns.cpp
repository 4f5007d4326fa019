// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/ColorRuns.h"

#include <cmath>
#include <limits>

namespace orvel {

void ColorRunTable::Record(std::size_t start, std::size_t length, ColorCode code) {
    constexpr std::size_t kLargest = std::numeric_limits<std::int16_t>::max();
    if (code == kNoColor || ColorRunCount == kLast || start > kLargest || length > kLargest) {
        return;
    }
    const auto entry = static_cast<std::size_t>(++ColorRunCount);
    ColorRunStart[entry] = static_cast<std::int16_t>(start);
    ColorRunLength[entry] = static_cast<std::int16_t>(length);
    ColorRunCode[entry] = code;
}

ColorCode DeviationColor(float depth, float average) {
    if (average <= 0) {
        return kNoColor;
    }
    constexpr long double kDecimals = 10000.0L;
    constexpr long double kLeast = 2000.5L; // rounds to more than 2000
    const long double deviation = std::fabs(static_cast<long double>(depth) - average) / average;
    if (deviation * kDecimals < kLeast) {
        return kNoColor;
    }
    return depth < average ? kRed : kBlue;
}

} // namespace orvel
