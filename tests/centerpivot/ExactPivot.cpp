// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/centerpivot/ExactPivot.h"

#include <algorithm>
#include <vector>

namespace orvel::testing {

namespace {

void Depths(const CenterPivotTest& test, ExactResults& results) {
    for (int i = 1; i <= results.cupCount; ++i) {
        const PivotGauge& gauge = test.Gauges[i];
        ExactRow& row = results.rows.at(static_cast<std::size_t>(i));
        row.sequence = gauge.Sequence;
        row.footage = gauge.Footage;
        row.depth = ExactDepth(gauge.Volume, Single(test.GuageDiameter));
    }
}

struct ExactCup {
    Rational depth;
    Rational distance;
};

Rational HeermannHein(const std::vector<ExactCup>& cups) {
    Rational weights;
    Rational products;
    for (const ExactCup& cup : cups) {
        weights += cup.distance;
        products += cup.depth * cup.distance;
    }
    const Rational mean = Quotient(products, weights);
    Rational deviations;
    for (const ExactCup& cup : cups) {
        deviations += abs(cup.depth - mean) * cup.distance;
    }
    return (1 - Quotient(deviations, products)) * 100;
}

void Uniformity(ExactResults& results) {
    std::vector<ExactCup> cups;
    std::vector<Rational> depths;
    results.maximumDepth = results.rows[1].depth;
    Rational sum;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(results.cupCount); ++i) {
        const ExactRow& row = results.rows.at(i);
        cups.push_back({Rational(row.depth), Rational(row.footage)});
        depths.emplace_back(row.depth);
        sum += depths.back();
        results.maximumDepth = std::max(results.maximumDepth, row.depth);
    }
    results.averageDepth = RoundToSingle(Quotient(sum, results.cupCount));
    const Rational average(results.averageDepth);
    results.christiansenCU = RoundToSingle(ExactChristiansen(depths, average));
    results.lowQuarterDU = RoundToSingle(ExactLowQuarter(depths, average));
    results.heermannHeinCU = RoundToSingle(HeermannHein(cups));
}

void Acres(const CenterPivotTest& test, ExactResults& results) {
    if (Entry(test.DistanceToTower).empty() || Entry(test.LengthOverhang).empty() ||
        Entry(test.EndGunRadius).empty()) {
        return;
    }
    const Rational machine(RoundToSingle(Single(test.DistanceToTower) + Single(test.LengthOverhang)));
    const Rational radius(RoundToSingle(machine + Single(test.EndGunRadius)));
    const Rational square(RoundToDouble(radius * radius));
    results.irrigatedAcres = RoundToSingle(square * ExactPi() / 43560);
}

float FlowRate(const CenterPivotTest& test, const ExactResults& results) {
    const Rational seconds(RoundToSingle(Single(test.TravelSpeedSeconds) / 3600));
    const Rational hours = Single(test.TravelSpeedMinutes) / 60 + seconds;
    const Rational speed(RoundToDouble(Quotient(Single(test.TravelSpeedFeet), hours)));
    const Rational timer = Double(test.PercentTimer);
    const Rational fullSpeed(RoundToSingle(Quotient(100, timer) * speed));
    const Rational tower = Double(test.DistanceToTower);
    const Rational circumference(RoundToSingle((tower + tower) * ExactPi()));
    const Rational fullSpeedHours = Quotient(circumference, fullSpeed);
    const Rational revolution = Quotient(fullSpeedHours, Rational(RoundToSingle(timer / 100)));
    Rational acres;
    if (!Entry(test.TotalAcres).empty()) {
        acres = Single(test.TotalAcres);
    }
    if (results.irrigatedAcres > 0) {
        acres = results.irrigatedAcres;
    }
    const Rational depth(results.averageDepth);
    if (acres == 0 || depth == 0 || revolution == 0) {
        return 0;
    }
    return RoundToSingle(acres * 453 * depth / revolution);
}

Rational EnteredFlow(const CenterPivotTest& test) {
    Rational flow;
    if (!Entry(test.EstFlowRate).empty()) {
        flow = Single(test.EstFlowRate);
    }
    if (!Entry(test.MeasuredFlowRate).empty()) {
        flow = Single(test.MeasuredFlowRate);
    }
    return flow;
}

float Efficiency(const CenterPivotTest& test, const ExactResults& results) {
    const Rational flow = EnteredFlow(test);
    const Rational calculated(results.calculatedFlowRate);
    return calculated != 0 && flow != 0 ? RoundToSingle(calculated / flow) : 0.0F;
}

// A step that traps its own errors: its result is 0 then.
template <class Step>
float ZeroWhenItFails(Step step) {
    try {
        return step();
    } catch (const ExactError&) {
        return 0;
    }
}

} // namespace

ExactResults EvaluateExactly(const CenterPivotTest& test, const ExactResults& before) {
    ExactResults results = before;
    results.error.reset();
    try {
        results.cupCount = ExactCupCount(test.Gauges);
        Depths(test, results);
        Uniformity(results);
        Acres(test, results);
        results.calculatedFlowRate = 0;
        results.calculatedFlowRate = ZeroWhenItFails([&] { return FlowRate(test, results); });
        results.applicationEfficiency = ZeroWhenItFails([&] { return Efficiency(test, results); });
    } catch (const ExactError& error) {
        results.error = error.number;
    }
    return results;
}

std::optional<float> ExactApplicationRate(const CenterPivotTest& test) {
    const Rational flow = EnteredFlow(test);
    if (flow == 0 || Entry(test.DistanceToTower).empty() || Entry(test.LengthOverhang).empty() ||
        Entry(test.RadLastSprinkler).empty()) {
        return std::nullopt;
    }
    const Rational length(RoundToSingle(Single(test.DistanceToTower) + Single(test.LengthOverhang)));
    return RoundToSingle(Quotient(flow * Rational(122.5), length * Single(test.RadLastSprinkler)));
}

} // namespace orvel::testing
