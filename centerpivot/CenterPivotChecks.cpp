// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "centerpivot/CenterPivotChecks.h"

#include "core/CatchCan.h"
#include "core/DataChecks.h"
#include "core/ProgramState.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <string_view>

namespace orvel {

namespace {

template <std::size_t N>
bool IsBlank(FixedText<N>& field) {
    return field.TrimInPlace().empty();
}

// A paragraph, which an empty line follows.
void AddParagraph(DataChecks& checks, std::string_view paragraph) {
    checks.AddWarning(std::string{paragraph}.append(kCrLf));
}

// Evaluates all its operands, so that every field is trimmed in the record.
template <std::size_t... N>
bool AreFilled(FixedText<N>&... fields) {
    const std::array filled{!IsBlank(fields)...};
    return std::ranges::all_of(filled, std::identity{});
}

void CheckMissingInputs(DataChecks& checks, CenterPivotTest& test) {
    // kept: the seconds are not required.
    const bool canChartTimer =
        AreFilled(test.PercentTimer, test.DistanceToTower, test.TravelSpeedFeet, test.TravelSpeedMinutes);
    const bool hasEstimatedFlow = AreFilled(test.EstFlowRate);
    const bool hasMeasuredFlow = AreFilled(test.MeasuredFlowRate);
    const bool hasFlow = hasEstimatedFlow || hasMeasuredFlow;
    const bool hasRateLengths = AreFilled(test.DistanceToTower, test.LengthOverhang, test.RadLastSprinkler);
    const bool canComputeRate = hasFlow && hasRateLengths;
    const bool canComputeAcres = AreFilled(test.DistanceToTower, test.LengthOverhang, test.EndGunRadius);
    const bool canComputeFlow = canComputeAcres && canChartTimer;
    const bool canComputeEfficiency = canComputeFlow && hasFlow;

    if (!canChartTimer) {
        AddParagraph(checks, "The distance to the last tower;travel speed of the last "
                             "tower; or percentage timer setting has not been entered. "
                             "Without this information an application chart ( percentage "
                             "timer chart) can not be generated. ");
    }
    if (!canComputeRate) {
        // kept: "must be" and "entered" run together.
        AddParagraph(checks, "The distance to the last tower, flow rate, "
                             "overhang length, and radius of last sprinkler must be"
                             "entered to calculate the Application Rate at the Last Tower.");
    }
    if (!canComputeAcres) {
        AddParagraph(checks, "The distance to last tower, length of overhang, and "
                             "end gun radius must be entered to compute the number "
                             "acres irrigated.");
    }
    if (!canComputeFlow) {
        AddParagraph(checks, "In order to calculate the GPM flow rate, the items "
                             "required to compute the acreage and timer chart must "
                             "be entered.");
    }
    if (!canComputeEfficiency) {
        AddParagraph(checks, "In order to calculate the Water Application Efficiency "
                             "data required to calculate the GPM flow rate and either "
                             "estimated or measured flow rate must be entered.");
    }
}

} // namespace

bool CheckCenterPivotData() {
    CenterPivotTest& test = Program().centerPivotTest;
    const std::int16_t cupCount = CountCups(test.Gauges);
    const float average = AverageVolume(test.Gauges, cupCount);

    DataChecks checks;
    checks.CheckCupCount(cupCount);
    checks.RequireEntry(test.ClientName, "You Should Enter the Client Name.");
    checks.RequireEntry(test.GuageDiameter, "Rain Gauge Diameter Must be Entered.");
    checks.RequireEntry(test.DistanceToFirstGuage, "Distance to First Gauge Must be Entered.");
    checks.RequireEntry(test.GuageSpacing, "Gauge Spacing Must be Entered.");
    CheckMissingInputs(checks, test);
    checks.CheckCatches(test.Gauges, cupCount, average);
    return checks.Report();
}

} // namespace orvel
