// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "centerpivot/CenterPivot.h"

#include "core/Arithmetic.h"
#include "core/CatchCan.h"
#include "core/Messages.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/RunTimeError.h"

#include <cmath>
#include <span>
#include <vector>

namespace orvel {

namespace {

constexpr double kSquareFeetPerAcre = 43560.0;
constexpr double kGpmPerAcreInchPerHour = 453.0;
constexpr double kApplicationRateFactor = 122.5;

CenterPivotTest& Test() {
    return Program().centerPivotTest;
}

// The depths of the counted cups, in cup order.
std::vector<float> Depths() {
    std::vector<float> depths;
    depths.reserve(CountedCupDepths().size());
    for (const CupDepth& cup : CountedCupDepths()) {
        depths.push_back(cup.Depth);
    }
    return depths;
}

void ComputeDepths() {
    float diameter = 0;
    for (int i = 1; i <= PivotResults().CupCount; ++i) {
        const PivotGauge& gauge = Test().Gauges[i];
        CupDepth& cup = CupDepths()[static_cast<std::size_t>(i)];
        cup.Sequence = gauge.Sequence;
        cup.Footage = gauge.Footage;
        if (i == 1) { // behind the first cup's place, which stays when the diameter is no number
            diameter = ToSingle(Test().GuageDiameter.Whole());
        }
        cup.Depth = DepthFromVolume(gauge.Volume, diameter);
    }
}

// The coefficient of uniformity weighted by each cup's distance from the pivot, percent.
// Source: D. F. Heermann and P. R. Hein, "Performance Characteristics of Self-Propelled Center-Pivot
// Sprinkler Irrigation System", 1968.
float HeermannHeinUniformity() {
    const auto cups = CountedCupDepths();
    long double weights = 0;
    long double products = 0;
    for (const CupDepth& cup : cups) {
        weights += cup.Footage;
        products += static_cast<long double>(cup.Depth) * cup.Footage;
    }
    const long double mean = Divide(products, weights);
    long double deviation = 0;
    for (const CupDepth& cup : cups) {
        deviation += std::fabs(cup.Depth - mean) * cup.Footage;
    }
    return StoreSingle((1.0L - Divide(deviation, products)) * 100.0L);
}

void ComputeIrrigatedAcres() {
    const auto tower = Test().DistanceToTower.TrimInPlace();
    const auto overhang = Test().LengthOverhang.TrimInPlace();
    const auto endGun = Test().EndGunRadius.TrimInPlace();
    if (tower.empty() || overhang.empty() || endGun.empty()) {
        // kept: the acres of an earlier test stay.
        return;
    }
    const float machine = AddSingles(ToSingle(tower), ToSingle(overhang));
    const float radius = AddSingles(machine, ToSingle(endGun));
    PivotResults().IrrigatedAcres = AcresFromRadius(radius);
}

// The measured flow rate, else the estimated one, else 0.
float EnteredFlowRate() {
    float flow = 0;
    if (const auto estimated = Test().EstFlowRate.TrimInPlace(); !estimated.empty()) {
        flow = ToSingle(estimated);
    }
    if (const auto measured = Test().MeasuredFlowRate.TrimInPlace(); !measured.empty()) {
        flow = ToSingle(measured);
    }
    return flow;
}

float AcresForFlowRate() {
    float acres = 0;
    if (const auto total = Test().TotalAcres.TrimInPlace(); !total.empty()) {
        acres = ToSingle(total);
    }
    return PivotResults().IrrigatedAcres > 0 ? PivotResults().IrrigatedAcres : acres;
}

// What is not a number counts as zero.
bool IsNonZero(long double value) {
    return value != 0 && !std::isnan(value);
}

} // namespace

CenterPivotResults& PivotResults() {
    static CenterPivotResults results;
    return results;
}

CupDepthTable& CupDepths() {
    static CupDepthTable depths;
    return depths;
}

std::span<const CupDepth> CountedCupDepths() {
    return std::span(CupDepths()).subspan(1, static_cast<std::size_t>(PivotResults().CupCount));
}

void ResetCenterPivot() {
    PivotResults() = {};
    CupDepths() = {};
}

float AcresFromRadius(float radius) {
    // The square of a Single is exact in a double.
    const double square = static_cast<double>(radius) * radius;
    return StoreSingle(static_cast<long double>(square) * kPi / kSquareFeetPerAcre);
}

float FlowRateFromDepth(float acres, float depth, long double hours) {
    return StoreSingle(Divide(acres * static_cast<long double>(kGpmPerAcreInchPerHour) * depth, hours));
}

RevolutionTime ComputeRevolutionTime() {
    const float seconds = StoreSingle(ToSingle(Test().TravelSpeedSeconds.Whole()) / 3600.0L);
    const long double hours = ToSingle(Test().TravelSpeedMinutes.Whole()) / 60.0L + seconds;
    const double speed = StoreDouble(Divide(ToSingle(Test().TravelSpeedFeet.Whole()), hours));
    const double timer = ToDouble(Test().PercentTimer.Whole());
    const float fullSpeed = StoreSingle(Divide(100.0L, timer) * speed);
    const long double tower = ToDouble(Test().DistanceToTower.Whole());
    const float circumference = StoreSingle((tower + tower) * kPi);
    const long double atFullSpeed = Divide(circumference, fullSpeed);
    return {atFullSpeed, Divide(atFullSpeed, StoreSingle(timer / 100.0L))};
}

void SortAndLowQuarter() {
    PivotResults().LowQuarterDU = LowQuarterUniformity(Depths(), PivotResults().AverageDepth);
}

void ComputeFlowRate() {
    try {
        const long double hours = ComputeRevolutionTime().atTestedSetting;
        const float acres = AcresForFlowRate();
        const float depth = PivotResults().AverageDepth;
        const bool canCompute = IsNonZero(acres) && IsNonZero(depth) && IsNonZero(hours);
        PivotResults().CalculatedFlowRate = canCompute ? FlowRateFromDepth(acres, depth, hours) : 0.0F;
    } catch (const RunTimeError&) { // NOLINT(bugprone-empty-catch)
        // Trapped silently: a blank or faulty entry only means that there is no flow rate.
    }
}

void ComputeEfficiency() {
    try {
        const float flow = EnteredFlowRate();
        const float calculated = PivotResults().CalculatedFlowRate;
        const bool canCompute = IsNonZero(calculated) && IsNonZero(flow);
        PivotResults().ApplicationEfficiency = canCompute ? StoreSingle(Divide(calculated, flow)) : 0.0F;
    } catch (const RunTimeError&) { // NOLINT(bugprone-empty-catch)
        // Trapped silently: a faulty flow rate only means that there is no efficiency.
    }
}

void CalculateCenterPivot() {
    CenterPivotResults& results = PivotResults();
    try {
        results.ReportTitle = "Center Pivot Water Application Uniformity Test";
        results.CupCount = CountCups(Test().Gauges);
        ComputeDepths();
        const std::vector<float> depths = Depths();
        const DepthTotals totals = TotalDepths(depths, CupDepths()[1].Depth);
        results.MaximumDepth = totals.maximum;
        results.AverageDepth = StoreSingle(Divide(totals.sum, results.CupCount));
        results.ChristiansenCU = ChristiansenUniformity(depths, results.AverageDepth, totals.sum);
        SortAndLowQuarter();
        results.HeermannHeinCU = HeermannHeinUniformity();
        ComputeIrrigatedAcres();
        results.CalculatedFlowRate = 0;
        ComputeFlowRate();
        results.ApplicationEfficiency = 0;
        ComputeEfficiency();
    } catch (const RunTimeError& error) {
        ShowGenerationError(error);
    }
}

std::optional<float> ApplicationRateAtLastTower() {
    const float flow = EnteredFlowRate();
    const auto tower = Test().DistanceToTower.TrimInPlace();
    const auto overhang = Test().LengthOverhang.TrimInPlace();
    const auto radius = Test().RadLastSprinkler.TrimInPlace();
    if (flow == 0 || tower.empty() || overhang.empty() || radius.empty()) {
        return std::nullopt;
    }
    const float length = AddSingles(ToSingle(tower), ToSingle(overhang));
    const long double wetted = static_cast<long double>(length) * ToSingle(radius);
    return StoreSingle(Divide(flow * static_cast<long double>(kApplicationRateFactor), wetted));
}

} // namespace orvel
