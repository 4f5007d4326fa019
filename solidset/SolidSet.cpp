// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "solidset/SolidSet.h"

#include "core/Arithmetic.h"
#include "core/CatchCan.h"
#include "core/Messages.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/RunTimeError.h"

namespace orvel {

namespace {

SolidSetTest& Test() {
    return Program().solidSetTest;
}

void ComputeDepths() {
    if (SolidResults().SolidSetCupCount == 0) {
        return;
    }
    const float diameter = ToSingle(Test().GuageDiameter.Whole());
    for (int i = 1; i <= SolidResults().SolidSetCupCount; ++i) {
        SolidResults().SolidSetDepths[static_cast<std::size_t>(i)] =
            DepthFromVolume(Test().Gauges[i].Volume, diameter);
    }
}

// The average depth over the hours that the test ran.
void ComputeApplicationRate() {
    SolidSetResults& results = SolidResults();
    const auto duration = Test().Duration.TrimInPlace();
    results.SolidSetApplicationRate =
        duration.empty() ? 0.0F
                         : StoreSingle(Divide(results.SolidSetAverageDepth, ToDouble(duration) / 60.0L));
}

} // namespace

SolidSetResults& SolidResults() {
    static SolidSetResults results;
    return results;
}

std::span<const float> SolidSetCountedDepths() {
    const SolidSetResults& results = SolidResults();
    return std::span(results.SolidSetDepths).subspan(1, static_cast<std::size_t>(results.SolidSetCupCount));
}

void ResetSolidSet() {
    SolidResults() = {};
}

void SolidSetLowQuarter() {
    SolidResults().SolidSetDU =
        LowQuarterUniformity(SolidSetCountedDepths(), SolidResults().SolidSetAverageDepth);
}

void CalculateSolidSet() {
    SolidSetResults& results = SolidResults();
    try {
        results.SolidSetCupCount = CountCups(Test().Gauges);
        ComputeDepths();
        const auto depths = SolidSetCountedDepths();
        const DepthTotals totals = TotalDepths(depths, results.SolidSetDepths[1]);
        results.SolidSetMaximumDepth = totals.maximum;
        results.SolidSetAverageDepth = StoreSingle(Divide(totals.sum, results.SolidSetCupCount));
        results.SolidSetCU = ChristiansenUniformity(depths, results.SolidSetAverageDepth, totals.sum);
        SolidSetLowQuarter();
        ComputeApplicationRate();
    } catch (const RunTimeError& error) {
        ShowGenerationError(error);
    }
}

} // namespace orvel
