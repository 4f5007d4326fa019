// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "centerpivot/CenterPivotSummary.h"

#include "centerpivot/CenterPivot.h"
#include "core/Masks.h"
#include "core/NumberText.h"
#include "core/Text.h"

namespace orvel {

std::string BuildCenterPivotSummary() {
    CalculateCenterPivot();
    const NumberLocale& invariant = InvariantNumberLocale();
    std::string text;
    for (int k = 1; k <= PivotResults().CupCount; ++k) {
        const CupDepth& cup = CupDepths()[static_cast<std::size_t>(k)];
        text.append(std::to_string(k)).append(",");
        text.append(PlainText(cup.Footage, invariant)).append(",");
        text.append(FormatMask(cup.Depth, "0.00", invariant)).append(kCrLf);
    }
    return text;
}

} // namespace orvel
