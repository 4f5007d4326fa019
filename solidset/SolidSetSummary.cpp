// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "solidset/SolidSetSummary.h"

#include "core/Masks.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/RunTimeError.h"
#include "core/Text.h"
#include "solidset/SolidSet.h"

namespace orvel {

namespace {

float DepthOfPoint(std::size_t point) {
    const auto& depths = SolidResults().SolidSetDepths;
    if (point >= depths.size()) {
        Raise(ErrorNumber::SubscriptOutOfRange);
    }
    return depths[point];
}

} // namespace

std::string BuildSolidSetSummary() {
    CalculateSolidSet();
    const SolidSetTest& test = Program().solidSetTest;
    const int numberX = ToInteger(test.NumberX.Whole());
    const int numberY = ToInteger(test.NumberY.Whole());
    std::string text;
    std::size_t point = 1;
    for (int x = 1; x <= numberX; ++x) {
        for (int y = 1; y <= numberY; ++y) {
            text.append(std::to_string(x)).append(",").append(std::to_string(y)).append(",");
            text.append(FormatMask(DepthOfPoint(point), "0.00", InvariantNumberLocale())).append(kCrLf);
            ++point;
        }
    }
    return text;
}

} // namespace orvel
