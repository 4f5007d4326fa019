// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "solidset/SolidSetReport.h"

#include "core/Masks.h"
#include "core/ProgramState.h"
#include "core/ReportHeading.h"
#include "core/ReportText.h"
#include "core/Text.h"
#include "solidset/SolidSet.h"

namespace orvel {

namespace {

SolidSetTest& Test() {
    return Program().solidSetTest;
}

std::string ApplicationRateText() {
    const float rate = SolidResults().SolidSetApplicationRate;
    return rate <= 0 ? "NOT COMPUTED" : FormatMask(rate, "0.00") + " inches per hour";
}

} // namespace

std::string SolidSetHeadingText() {
    return ReportHeadingText(
        HeadingFieldsOf(Test(), "Solid Set Water Application Uniformity Test", Program().solidSetFile));
}

std::string SolidSetFieldText() {
    SolidSetTest& test = Test();
    std::string text = ReportLine("Field Information");
    text += FilledLine("Field Name:          ", test.FieldName);
    text += FilledLine("Estimated Area:      ", test.TotalAcres);
    text += ChosenLine("Soil Type:           ", test.SoilType, kPromptSoilType);
    text += ChosenLine("Soil Slope:          ", test.SoilSlope, kPromptSoilSlope);
    text += FilledLine("Common Tillage:      ", test.CommonTillage);
    text += FilledLine("Predominate Crops:   ", test.Crops);
    text += FilledLine("Comments (field):    ", test.FieldComments);
    return text + RuleLine();
}

std::string SolidSetSystemText() {
    SolidSetTest& test = Test();
    std::string text = ReportLine("System Information");
    text += ReportLine("Sprinkler:           ", test.SystemManufacturer.TrimInPlace());
    // kept: "Sprikler".
    text += ReportLine("Sprikler Age :       ", test.SprinklerAge.TrimInPlace());
    text += ReportLine("Sprinkler Spacing:   ", test.SprinklerSpacing.TrimInPlace());
    text += ReportLine("Estimated Flow Rate: ", test.EstFlowRate.TrimInPlace());
    // kept: a blank before the colon.
    text += ReportLine("Measured Flow Rate : ", test.MeasuredFlowRate.TrimInPlace());
    text += ReportLine("Estimated Pressure:  ", test.EstimatedPressure.TrimInPlace());
    text += ReportLine("Measured Pressure:   ", test.MeasuredPressure.TrimInPlace());
    text += ReportLine("Leaks Observed:      ", BooleanWord(test.ObservedLeaks.IsSet()));
    text += ReportLine("Operation Times:     ", test.OperatingTimes.TrimInPlace());
    text += ReportLine("");
    text += ReportLine("Comments:");
    text += ReportLine(test.SystemComments.TrimInPlace());
    return text + RuleLine();
}

std::string SolidSetResultsText() {
    const SolidSetResults& results = SolidResults();
    std::string text =
        ReportLine("Average Depth = ", FormatMask(results.SolidSetAverageDepth, "0.00"), " inches");
    text += ReportLine("Application Rate = ", ApplicationRateText());
    text += ReportLine("");
    // kept: "Cooeficients", its colon, and the low quarter's figure labelled CU.
    text += ReportLine("Cooeficients of Uniformity:");
    text += PercentLine("Christiansen Method       CU = ", results.SolidSetCU);
    text += PercentLine("Low Quarter Distribution  CU = ", results.SolidSetDU);
    return text + RuleLine();
}

std::string SolidSetUniformityText() {
    return ReportLine("") + LowAndHighPointsParagraph() + LowQuarterParagraph(SolidResults().SolidSetDU) +
           RuleLine();
}

std::string SolidSetCommentsText() {
    std::string text = ReportLine("Comments:");
    text += ReportLine(Test().OtherComments.Whole());
    return text + Rule();
}

} // namespace orvel
