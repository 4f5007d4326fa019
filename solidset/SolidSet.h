// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Records.h"

#include <array>
#include <cstdint>
#include <span>

// The arithmetic of a solid-set catch-can test. The routines take their input from the program's current
// SolidSetTest and leave their results in the global below, which report, export and command line read.
// Depths are inches, rates inches per hour.
namespace orvel {

// Results live for the whole run. A calculation that fails leaves what an earlier one left.
struct SolidSetResults {
    std::int16_t SolidSetCupCount = 0;
    // Entry i is the depth of cup i; entry 0 is not used.
    std::array<float, MeasurementList<SolidSetGauge>::kLast + 1> SolidSetDepths{};
    float SolidSetMaximumDepth = 0;
    float SolidSetAverageDepth = 0;
    float SolidSetCU = 0;              // percent, Christiansen
    float SolidSetDU = 0;              // percent, low quarter
    float SolidSetApplicationRate = 0; // 0 when no duration is given
};

[[nodiscard]] SolidSetResults& SolidResults();

// The depths of the counted cups, in cup order.
[[nodiscard]] std::span<const float> SolidSetCountedDepths();

// Puts the results back to program start: all zero.
void ResetSolidSet();

// Computes everything, in a fixed order. Traps every run-time error: it then stops, shows the error box and
// returns normally; what was computed before stays. Trims Duration in the record.
void CalculateSolidSet();

// Sets SolidSetDU from the depths and the average.
void SolidSetLowQuarter();

} // namespace orvel
