// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Records.h"

#include <cstdint>
#include <optional>
#include <span>

// The catch-can arithmetic that both kinds of test share. All functions raise Overflow or Division by zero
// where their formula does.
namespace orvel {

inline constexpr double kPi = 3.14159265358979;

// The number of cups: the index before the first pair of consecutive zero volumes among entries 1 to 300, so
// that a single zero inside the list is a measurement. Raises Subscript out of range when there is no such
// pair, since the search then looks at entry 301.
template <class Gauge>
std::int16_t CountCups(const MeasurementList<Gauge>& gauges) {
    for (int i = 1;; ++i) {
        // kept: the entry behind is looked at whether or not this one is zero.
        const bool isZero = gauges[i].Volume == 0.0F;
        const bool isNextZero = gauges[i + 1].Volume == 0.0F;
        if (isZero && isNextZero) {
            return static_cast<std::int16_t>(i - 1);
        }
    }
}

// Depth of water in inches: the volume (cc) spread over a cup's opening of the given diameter (cm).
// V x 4 / (D^2 x pi) x 0.393700787
[[nodiscard]] float DepthFromVolume(float volume, float diameter);

// The sum of all depths and the largest; the search for it starts from `first`, the depth of row 1 whatever
// it holds.
struct DepthTotals {
    float maximum = 0;
    long double sum = 0;
};

[[nodiscard]] DepthTotals TotalDepths(std::span<const float> depths, float first);

// Christiansen's coefficient of uniformity in percent: (1 - sum of |depth - average| / sum of depths) x 100.
// Source: J. E. Christiansen, "Irrigation by Sprinkling", 1942.
[[nodiscard]] float ChristiansenUniformity(std::span<const float> depths, float average, long double sum);

// The distribution uniformity of the low quarter in percent: the mean of the q lowest depths over the
// average. q is a quarter of the count, rounded to even at ties; kept: the sum of the q lowest is divided by
// the unrounded quarter, so ten equal cups give 80 and a single cup gives 0.
[[nodiscard]] float LowQuarterUniformity(std::span<const float> depths, float average);

} // namespace orvel
