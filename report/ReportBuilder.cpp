// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/ReportBuilder.h"

#include "centerpivot/CenterPivot.h"
#include "centerpivot/CenterPivotChecks.h"
#include "centerpivot/CenterPivotReport.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "report/DataGraph.h"
#include "report/PercentTimerTable.h"
#include "report/ReportFont.h"
#include "report/RepresentativeLayout.h"
#include "solidset/SolidSet.h"
#include "solidset/SolidSetChecks.h"
#include "solidset/SolidSetReport.h"

#include <optional>

namespace orvel {

namespace {

std::optional<Color> ColorOf(std::int16_t code) {
    switch (code) {
    case kRed:
        return Color{255, 0, 0};
    case kBlue:
        return Color{0, 0, 255};
    case kGreen:
        return Color{0, 255, 0};
    default:
        return std::nullopt;
    }
}

} // namespace

void ReportBuilder::BuildCenterPivotReport() {
    if (!Begin(CheckCenterPivotData)) {
        return;
    }
    CalculateCenterPivot();
    UseReportFont(reportRTB);
    const TextHeldBack held(reportRTB);
    SetFirstSection(CenterPivotHeadingText());
    AppendSection(CenterPivotFieldText());
    AppendSection(CenterPivotSystemText());
    AppendSection(CenterPivotResultsText());
    AppendGraph(AppendDataGraph);
    AppendGraph(AppendPercentTimerTable);
    AppendSection(CenterPivotApplicationRateText());
    AppendSection(CenterPivotUniformityText());
    AppendSection(CenterPivotCommentsText());
    ApplyCenterPivotColors();
}

void ReportBuilder::BuildSolidSetReport() {
    try {
        if (!Begin(SolidSetDataCheck)) {
            return;
        }
        UseReportFont(reportRTB);
        CalculateSolidSet();
        const TextHeldBack held(reportRTB);
        SetFirstSection(SolidSetHeadingText());
        AppendSection(SolidSetFieldText());
        AppendSection(SolidSetSystemText());
        AppendSection(SolidSetResultsText());
        AppendGraph(AppendRepresentativeLayout);
        AppendSection(SolidSetUniformityText());
        AppendSection(SolidSetCommentsText());
        ApplySolidSetColors();
    } catch (const RunTimeError& error) {
        reportRTB.SetText("");
        ShowGenerationError(error);
    }
}

void ReportBuilder::ApplyCenterPivotColors() {
    ApplyColors(colorRuns.ColorRunCount);
}

void ReportBuilder::ApplySolidSetColors() {
    ApplyColors(ColorRunTable::kLast);
}

bool ReportBuilder::Begin(bool (*check)()) {
    colorRuns = {};
    if (check()) {
        return true;
    }
    reportRTB.SetText(kReportNotCreated);
    return false;
}

void ReportBuilder::SetFirstSection(std::string_view section) {
    text.clear();
    AppendSection(section);
}

void ReportBuilder::AppendSection(std::string_view section) {
    text += section;
    reportRTB.SetText(text);
}

void ReportBuilder::AppendGraph(void (*append)(std::string& text, ColorRunTable& runs)) {
    append(text, colorRuns);
    reportRTB.SetText(text);
}

void ReportBuilder::ApplyColors(std::int16_t last) {
    for (std::size_t i = 1; i <= static_cast<std::size_t>(last); ++i) {
        reportRTB.Select(static_cast<std::size_t>(colorRuns.ColorRunStart[i]),
                         static_cast<std::size_t>(colorRuns.ColorRunLength[i]));
        if (const auto color = ColorOf(colorRuns.ColorRunCode[i])) {
            reportRTB.SetSelectionColor(*color);
        }
    }
    reportRTB.Select(0, 0);
}

} // namespace orvel
