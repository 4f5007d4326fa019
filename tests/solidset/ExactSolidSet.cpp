// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/solidset/ExactSolidSet.h"

#include <algorithm>
#include <vector>

namespace orvel::testing {

namespace {

// The hours and the quotient have no type of their own. Their roundings show where the exact quotient lies in
// the middle between two Singles, as it may after 40 minutes, which make it three halves of the average.
float RateOver(const Rational& minutes, const Rational& average) {
    const Rational hours = RoundToExtended(minutes / 60);
    return RoundToSingle(RoundToExtended(Quotient(average, hours)));
}

void Calculate(const SolidSetTest& test, ExactSolidSetResults& results) {
    results.cupCount = ExactCupCount(test.Gauges);
    std::vector<Rational> depths;
    Rational sum;
    for (int i = 1; i <= results.cupCount; ++i) {
        float& depth = results.depths.at(static_cast<std::size_t>(i));
        depth = ExactDepth(test.Gauges[i].Volume, Single(test.GuageDiameter));
        depths.emplace_back(depth);
        sum += depths.back();
    }
    results.maximumDepth = results.depths[1];
    for (int i = 1; i <= results.cupCount; ++i) {
        results.maximumDepth = std::max(results.maximumDepth, results.depths.at(static_cast<std::size_t>(i)));
    }
    results.averageDepth = RoundToSingle(Quotient(sum, results.cupCount));
    const Rational average(results.averageDepth);
    results.cu = RoundToSingle(ExactChristiansen(depths, average));
    results.du = RoundToSingle(ExactLowQuarter(depths, average));
    const std::string duration{Entry(test.Duration)};
    results.duration = duration + std::string(test.Duration.Whole().size() - duration.size(), ' ');
    results.applicationRate = duration.empty() ? 0.0F : RateOver(Double(test.Duration), average);
}

} // namespace

ExactSolidSetResults EvaluateExactly(const SolidSetTest& test, const ExactSolidSetResults& before) {
    ExactSolidSetResults results = before;
    results.duration = test.Duration.Whole();
    results.error.reset();
    try {
        Calculate(test, results);
    } catch (const ExactError& error) {
        results.error = error.number;
    }
    return results;
}

} // namespace orvel::testing
