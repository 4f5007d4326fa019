// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/FixedText.h"
#include "core/Records.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>

// The arithmetic of a center-pivot catch-can test. The routines take their input from the program's current
// CenterPivotTest and leave their results in the two globals below, which report, export and command line
// read. Lengths are feet, depths inches, flow rates gallons per minute (GPM), times hours.
namespace orvel {

// One cup of the calculation: position and distance as the record has them, and the depth caught.
struct CupDepth {
    Single Sequence;
    Single Footage;
    float Depth = 0;
};

// Rows 1 to 300 are used.
using CupDepthTable = std::array<CupDepth, MeasurementList<PivotGauge>::kLast + 1>;

// Results live for the whole run. A calculation that fails, or that has no input for one of them, leaves
// what an earlier one left (kept: so IrrigatedAcres and CupCount can be an earlier test's).
struct CenterPivotResults {
    FixedText<80> ReportTitle;
    std::int16_t CupCount = 0;
    float MaximumDepth = 0;
    float AverageDepth = 0;
    float ChristiansenCU = 0; // percent
    float HeermannHeinCU = 0; // percent
    float LowQuarterDU = 0;   // percent
    float IrrigatedAcres = 0;
    float CalculatedFlowRate = 0;    // 0 when it can't be computed
    float ApplicationEfficiency = 0; // ratio of calculated to entered flow rate; 0 when it can't be computed
};

[[nodiscard]] CenterPivotResults& PivotResults();
[[nodiscard]] CupDepthTable& CupDepths();
// Those of the counted cups, in cup order.
[[nodiscard]] std::span<const CupDepth> CountedCupDepths();

// Puts results and depths back to program start: all zero.
void ResetCenterPivot();

// Computes everything, in a fixed order. Traps every run-time error: it then stops, shows the error box and
// returns normally; what was computed before stays.
void CalculateCenterPivot();

// The area of a circle in acres: r^2 x pi / 43560 square feet.
[[nodiscard]] float AcresFromRadius(float radius);
// The flow that puts `depth` inches on `acres` in `hours`, GPM: acres x 453 x depth / hours.
[[nodiscard]] float FlowRateFromDepth(float acres, float depth, long double hours);

// How long a full circle takes, from the travel speed of the last tower; hours.
struct RevolutionTime {
    long double atFullSpeed = 0;
    long double atTestedSetting = 0;
};

// Raises Type mismatch for a blank or faulty entry (travel speed, timer setting, distance to the tower),
// Division by zero or Overflow where the formulas do.
[[nodiscard]] RevolutionTime ComputeRevolutionTime();

// Sets LowQuarterDU from the depths and AverageDepth.
void SortAndLowQuarter();
// Sets CalculatedFlowRate from travel speed, timer and acres; traps its own errors, which leave it as it is.
void ComputeFlowRate();
// Sets ApplicationEfficiency; traps its own errors, which leave it as it is.
void ComputeEfficiency();

// The rate at which the outermost part of the machine applies water, inches per hour:
// flow x 122.5 / ((distance to tower + overhang) x radius of the last sprinkler). Nothing when one of these
// is missing. Traps nothing: raises Type mismatch, Division by zero, Overflow.
[[nodiscard]] std::optional<float> ApplicationRateAtLastTower();

} // namespace orvel
