// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/CenterPivotReportBuild.h"

#include "centerpivot/CenterPivot.h"
#include "centerpivot/CenterPivotChecks.h"
#include "centerpivot/CenterPivotReport.h"

namespace orvel {

bool BuildCenterPivotReport(std::string& text) {
    if (!CheckCenterPivotData()) {
        text = kReportNotCreated;
        return false;
    }
    CalculateCenterPivot();
    std::string report = CenterPivotHeadingText();
    report += CenterPivotFieldText();
    report += CenterPivotSystemText();
    report += CenterPivotResultsText();
    report += CenterPivotApplicationRateText();
    report += CenterPivotUniformityText();
    report += CenterPivotCommentsText();
    text = std::move(report);
    return true;
}

} // namespace orvel
