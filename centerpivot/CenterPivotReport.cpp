// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "centerpivot/CenterPivotReport.h"

#include "centerpivot/CenterPivot.h"
#include "core/Arithmetic.h"
#include "core/Masks.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/ReportHeading.h"
#include "core/ReportText.h"
#include "core/Text.h"

#include <cmath>
#include <string_view>

namespace orvel {

namespace {

constexpr float kAcresTolerance = 0.1F;
constexpr float kGoodUniformity = 80.0F;
constexpr float kGoodEfficiency = 80.0F;

CenterPivotTest& Test() {
    return Program().centerPivotTest;
}

std::string AcresWarning(float estimated, float irrigated) {
    if (estimated <= 0 || irrigated <= 0) {
        return {};
    }
    const long double difference = std::fabs(static_cast<long double>(estimated) - irrigated);
    if (StoreSingle(Divide(difference, estimated)) <= kAcresTolerance) {
        return {};
    }
    return ReportLine("Calculated acres is more/less than 10% of estimated "
                      "acres which could cause errors in data output.");
}

std::string EfficiencyParagraph() {
    const float efficiency = PivotResults().ApplicationEfficiency;
    if (efficiency <= 0) {
        return {};
    }
    const float percent = StoreSingle(efficiency * 100.0L);
    std::string text = "The Water Application Efficiency (WAE) is an indication "
                       "of how much of the water pumped is actually getting "
                       "to the crop. WAE varies depending on the type sprinkler package, "
                       "time of day, and prevailing weather (wind) conditions. A WAE "
                       "greater than 80% is desirable. Your WAE of ";
    text.append(FormatMask(percent, "##.##")).append("% indicates that ");
    // kept: "recomendation(s)".
    text += percent < kGoodEfficiency ? "improvements are indicated. To find out what specific "
                                        "recomendation(s) you might consider to improve the "
                                        "WAE for this system you should contact an irrigation "
                                        "dealer/consultant familiar with the "
                                        "management and design of irrigation systems."
                                      : "improvements are not necessarily indicated.";
    return text.append(kCrLf).append(kCrLf);
}

} // namespace

std::string CenterPivotHeadingText() {
    return ReportHeadingText(
        HeadingFieldsOf(Test(), PivotResults().ReportTitle.Trimmed(), Program().centerPivotFile));
}

std::string CenterPivotFieldText() {
    CenterPivotTest& test = Test();
    const float irrigated = PivotResults().IrrigatedAcres;
    std::string text = ReportLine("Field Information");
    text += FilledLine("Field Name:      ", test.FieldName);
    float estimated = 0;
    if (const auto acres = test.TotalAcres.TrimInPlace(); !acres.empty()) {
        estimated = ToSingle(acres);
        text += ReportLine("Estimated Acres: ", FormatMask(estimated, "#,###"));
    }
    if (irrigated > 0) {
        text += ReportLine("Irrigated Acres: ", FormatMask(irrigated, "#,###"));
    }
    text += AcresWarning(estimated, irrigated);
    text += ChosenLine("Soil Type: ", test.SoilType, kPromptSoilType);
    text += ChosenLine("Soil Slope: ", test.SoilSlope, kPromptSoilSlope);
    text += ChosenLine("Common Tillage: ", test.CommonTillage, kPromptCommonTillage);
    text += FilledLine("Predominate Crops: ", test.Crops);
    text += FilledLine("Comments (field): ", test.FieldComments);
    return text + RuleLine();
}

std::string CenterPivotSystemText() {
    CenterPivotTest& test = Test();
    std::string text = ReportLine("System Information");
    text += ChosenLine("System Manufacturer: ", test.SystemManufacturer, kPromptSystemManufacturer);
    text += ChosenLine("Type Sprinkler: ", test.TypeSprinkler, kPromptTypeSprinkler);
    text += FilledLine("System Age: ", test.SystemAge);
    const auto tower = test.DistanceToTower.TrimInPlace();
    const auto overhang = test.LengthOverhang.TrimInPlace();
    if (!tower.empty() && !overhang.empty()) {
        const float length = AddSingles(ToSingle(tower), ToSingle(overhang));
        // kept: no colon.
        text += ReportLine("System Length ", FormatMask(length, "#,###"));
    }
    text += FilledLine("Estimated Flow Rate: ", test.EstFlowRate);
    text += FilledLine("Estimated Pressure: ", test.EstimatedPressure);
    text += FilledLine("Measured Flow Rate:  ", test.MeasuredFlowRate);
    text += FilledLine("Measured Pressure:  ", test.MeasuredPressure);
    // kept: unlike the other combo boxes, this one prints its prompt and leaves out a blank.
    text += FilledLine("Operation Times: ", test.OperatingTimes);
    return text + RuleLine();
}

std::string CenterPivotResultsText() {
    const CenterPivotResults& results = PivotResults();
    std::string text =
        ReportLine("Average Depth:           ", FormatMask(results.AverageDepth, "0.00"), " inches");
    if (const auto timer = Test().PercentTimer.TrimInPlace(); !timer.empty()) {
        text += ReportLine("System Timer Setting:    ", FormatMask(ToSingle(timer), "##"), "%");
    }
    if (results.CalculatedFlowRate > 0) {
        text += ReportLine(
            "Calculated Flow Rate:           ", FormatMask(results.CalculatedFlowRate, "#,###.00"), " GPM");
    }
    if (results.ApplicationEfficiency > 0) {
        const float percent = StoreSingle(results.ApplicationEfficiency * 100.0L);
        text += ReportLine("Water Application Efficiency:   ", FormatMask(percent, "##.00"), "%");
    }
    text += kCrLf;
    // kept: "Cooeficients", and the low quarter's figure labelled CU.
    text += ReportLine("Cooeficients of Uniformity");
    text += PercentLine("Christiansen Method       CU = ", results.ChristiansenCU);
    text += PercentLine("Heermann and Hein Method  CU = ", results.HeermannHeinCU);
    text += PercentLine("Low Quarter Distribution  CU = ", results.LowQuarterDU);
    return text + RuleLine();
}

std::string CenterPivotApplicationRateText() {
    const auto rate = ApplicationRateAtLastTower();
    return rate ? ReportLine("Application Rate at Last Tower: ", FormatMask(*rate, "0.00")) : std::string{};
}

std::string CenterPivotUniformityText() {
    const CenterPivotResults& results = PivotResults();
    std::string text = ReportLine("Uniformity Analysis:");
    // kept: "Christensen" here, "Christiansen" among the results.
    text += "The degree of uniform water delivery is indicated by the "
            "coefficient(s) of uniformity. The Christensen uniformity is the "
            "simplest expression to calculate. An acceptable uniformity "
            "coefficient is one greater than 80%. Your Christensen uniformity "
            "coefficient is ";
    text.append(PercentText(results.ChristiansenCU)).append(". ");
    text += results.ChristiansenCU < kGoodUniformity
                ? "Since your coefficient is below 80% measures should be taken "
                  "to improve the water delivery. In many cases a uniformity "
                  "below 80% is indicative of a worn sprinkler package. "
                  "Unless there are specific points in the field that need "
                  "attention you might consider installing a new sprinkler "
                  "package. "
                : "Since your coefficient is above 80% no specific "
                  "recommendations for improvement are being made. ";
    text.append(kCrLf).append(kCrLf);
    text += LowAndHighPointsParagraph();
    text += LowQuarterParagraph(results.LowQuarterDU);
    text += EfficiencyParagraph();
    return text + RuleLine();
}

std::string CenterPivotCommentsText() {
    // kept: "Recomendations".
    std::string text = ReportLine("Other Comments / Recomendations:");
    text += ReportLine(Test().OtherComments.Whole());
    text += kCrLf;
    return text + RuleLine();
}

} // namespace orvel
