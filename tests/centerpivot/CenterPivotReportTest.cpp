// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "centerpivot/CenterPivotReport.h"

#include "tests/centerpivot/PivotFixture.h"

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <tuple>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;
using testing::kRuleLine;
using testing::SameText;

class CenterPivotReportTest : public testing::PivotTest {
protected:
    static CenterPivotResults& Results() { return PivotResults(); }
};

TEST_F(CenterPivotReportTest, HeadingNamesTestClientAndTester) {
    FillTest();
    Test().ClientName = "  Alder Creek Farms";
    Results().ReportTitle = "Center Pivot Water Application Uniformity Test";
    Program().centerPivotFile = "folder/north.cpd";
    Program().userSettings.Name = "Ida Lund";
    Program().userSettings.EMail = "ida@extension.example";
    EXPECT_TRUE(SameText(
        CenterPivotHeadingText(),
        "                 Center Pivot Water Application Uniformity Test                 \r\n" + kRuleLine +
            "Date of Test: 08/15/1978\r\n"
            "File Name:    north.cpd\r\n"
            "Report Date:  2026-07-04 09:05:03\r\n" +
            kRuleLine +
            "Test Conducted For:                For Further Information Contact:\r\n"
            "Alder Creek Farms                  Ida Lund\r\n"
            "Home Place                         E-Mail: ida@extension.example\r\n"
            "R. Lindqvist                       \r\n"
            "1200 County Road 14                \r\n"
            "Alder Creek, XX, 00000             \r\n"
            "Sample County                      \r\n"
            "555-0114                           \r\n"
            "E-Mail: office@farm.example        \r\n" +
            kRuleLine));
    EXPECT_EQ(Test().ClientName.Whole().substr(0, 5), "Alder");
}

TEST_F(CenterPivotReportTest, FieldSectionWithEveryLine) {
    FillTest();
    Test().FieldName = "  North quarter ";
    Test().TotalAcres = " 1234.5";
    Results().IrrigatedAcres = 1000.4F;
    EXPECT_TRUE(
        SameText(CenterPivotFieldText(),
                 "Field Information\r\n"
                 "Field Name:      North quarter\r\n"
                 "Estimated Acres: 1,235\r\n"
                 "Irrigated Acres: 1,000\r\n"
                 "Calculated acres is more/less than 10% of estimated acres which could cause errors in "
                 "data output.\r\n"
                 "Soil Type: 4 - Loam\r\n"
                 "Soil Slope: 1-3 Percent\r\n"
                 "Common Tillage: No Till\r\n"
                 "Predominate Crops: Corn-Alfalfa\r\n"
                 "Comments (field): Stubble.\r\n" +
                     kRuleLine));
    EXPECT_EQ(Test().FieldName.Whole().substr(0, 5), "North");
    EXPECT_EQ(Test().TotalAcres.Whole().substr(0, 6), "1234.5");
}

TEST_F(CenterPivotReportTest, FieldSectionOfANewTestIsEmpty) {
    Test() = NewCenterPivotTest();
    EXPECT_TRUE(SameText(CenterPivotFieldText(), "Field Information\r\n" + kRuleLine));
}

TEST_F(CenterPivotReportTest, FieldSectionPrintsBareLabelsOfBlankChoices) {
    EXPECT_TRUE(SameText(CenterPivotFieldText(), "Field Information\r\n"
                                                 "Soil Type: \r\n"
                                                 "Soil Slope: \r\n"
                                                 "Common Tillage: \r\n" +
                                                     kRuleLine));
    Test().SoilType = " Choose Soil Type ";
    Test().SoilSlope = "Choose Soil Type";
    Test().CommonTillage = "choose common tillage";
    EXPECT_TRUE(SameText(CenterPivotFieldText(), "Field Information\r\n"
                                                 "Soil Slope: Choose Soil Type\r\n"
                                                 "Common Tillage: choose common tillage\r\n" +
                                                     kRuleLine));
}

TEST_F(CenterPivotReportTest, FieldSectionPrintsAcresThatRoundToNothing) {
    Test() = NewCenterPivotTest();
    Test().TotalAcres = "0";
    Results().IrrigatedAcres = 0.4F;
    EXPECT_TRUE(SameText(CenterPivotFieldText(), "Field Information\r\n"
                                                 "Estimated Acres: \r\n"
                                                 "Irrigated Acres: \r\n" +
                                                     kRuleLine));
}

TEST_F(CenterPivotReportTest, WarnsOfAcresMoreThanTenPercentOff) {
    struct Case {
        const char* estimated;
        float irrigated;
        bool warns;
    };
    constexpr std::array kCases = {
        Case{"100", 111, true},  Case{"100", 110, false}, Case{"100", 110.00001F, true},
        Case{"100", 90, false},  Case{"100", 89, true},   Case{"100", 89.99999F, true},
        Case{"100", 100, false}, Case{"111", 100, false}, Case{"112", 100, true},
        Case{"0", 50, false},    Case{"-50", 50, false},  Case{"100", 0, false},
        Case{"100", -50, false}, Case{"", 50, false},     Case{"30", 33, false},
        Case{"0.1", 500, true},
    };
    for (const Case& row : kCases) {
        Test().TotalAcres = row.estimated;
        Results().IrrigatedAcres = row.irrigated;
        EXPECT_EQ(CenterPivotFieldText().find("\r\nCalculated acres is ") != std::string::npos, row.warns)
            << row.estimated << " and " << row.irrigated;
    }
}

TEST_F(CenterPivotReportTest, SystemSectionWithEveryLine) {
    FillTest();
    Test().SystemAge = " 6 years";
    Test().LengthOverhang = " 40.5";
    Test().OperatingTimes = " Daytime Only";
    EXPECT_TRUE(SameText(CenterPivotSystemText(), "System Information\r\n"
                                                  "System Manufacturer: Reinke\r\n"
                                                  "Type Sprinkler: LEPA\r\n"
                                                  "System Age: 6 years\r\n"
                                                  "System Length 1,421\r\n"
                                                  "Estimated Flow Rate: 900\r\n"
                                                  "Estimated Pressure: 45\r\n"
                                                  "Measured Flow Rate:  1000\r\n"
                                                  "Measured Pressure:  42\r\n"
                                                  "Operation Times: Daytime Only\r\n" +
                                                      kRuleLine));
    EXPECT_EQ(Test().LengthOverhang.Whole().substr(0, 4), "40.5");
    EXPECT_EQ(Test().OperatingTimes.Whole().substr(0, 3), "Day");
}

TEST_F(CenterPivotReportTest, SystemSectionOfANewTestPrintsThePromptOfTheOperatingTimes) {
    Test() = NewCenterPivotTest();
    EXPECT_TRUE(SameText(CenterPivotSystemText(), "System Information\r\n"
                                                  "Operation Times: Choose Operating Time\r\n" +
                                                      kRuleLine));
}

TEST_F(CenterPivotReportTest, SystemSectionOfABlankTestPrintsTheBareLabelsOfItsChoices) {
    EXPECT_TRUE(SameText(CenterPivotSystemText(), "System Information\r\n"
                                                  "System Manufacturer: \r\n"
                                                  "Type Sprinkler: \r\n" +
                                                      kRuleLine));
}

TEST_F(CenterPivotReportTest, SystemLengthNeedsBothLengths) {
    Test().DistanceToTower = "1380";
    EXPECT_EQ(CenterPivotSystemText().find("System Length"), std::string::npos);
    Test().LengthOverhang = "0";
    EXPECT_NE(CenterPivotSystemText().find("\r\nSystem Length 1,380\r\n"), std::string::npos);
    Test().DistanceToTower = "";
    EXPECT_EQ(CenterPivotSystemText().find("System Length"), std::string::npos);
    Test().DistanceToTower = "0";
    EXPECT_NE(CenterPivotSystemText().find("\r\nSystem Length \r\n"), std::string::npos);
    // A sum in single precision, with its seven digits.
    Test().DistanceToTower = "9999999";
    Test().LengthOverhang = "0.5";
    EXPECT_NE(CenterPivotSystemText().find("\r\nSystem Length 10,000,000\r\n"), std::string::npos);
}

TEST_F(CenterPivotReportTest, ResultsWithEveryLine) {
    Test().PercentTimer = " 37.5";
    Results().AverageDepth = 0.505F;
    Results().CalculatedFlowRate = 1234.565F;
    Results().ApplicationEfficiency = 0.87145F;
    Results().ChristiansenCU = 88.4F;
    Results().HeermannHeinCU = 7.4F;
    Results().LowQuarterDU = 100;
    EXPECT_TRUE(SameText(CenterPivotResultsText(), "Average Depth:           0.51 inches\r\n"
                                                   "System Timer Setting:    38%\r\n"
                                                   "Calculated Flow Rate:           1,234.57 GPM\r\n"
                                                   "Water Application Efficiency:   87.15%\r\n"
                                                   "\r\n"
                                                   "Cooeficients of Uniformity\r\n"
                                                   "Christiansen Method       CU = 88%\r\n"
                                                   "Heermann and Hein Method  CU = 07%\r\n"
                                                   "Low Quarter Distribution  CU = 100%\r\n" +
                                                       kRuleLine));
    EXPECT_EQ(Test().PercentTimer.Whole().substr(0, 4), "37.5");
}

TEST_F(CenterPivotReportTest, ResultsLeaveOutWhatCouldNotBeComputed) {
    const std::string withoutThree = "Average Depth:           0.00 inches\r\n"
                                     "\r\n"
                                     "Cooeficients of Uniformity\r\n"
                                     "Christiansen Method       CU = 00%\r\n"
                                     "Heermann and Hein Method  CU = 00%\r\n"
                                     "Low Quarter Distribution  CU = 00%\r\n" +
                                     kRuleLine;
    EXPECT_TRUE(SameText(CenterPivotResultsText(), withoutThree));
    Results().CalculatedFlowRate = -1;
    Results().ApplicationEfficiency = -1;
    EXPECT_TRUE(SameText(CenterPivotResultsText(), withoutThree));
}

TEST_F(CenterPivotReportTest, ResultsFollowTheirMasks) {
    Test().PercentTimer = "0";
    Results().CalculatedFlowRate = 0.5F;
    Results().ApplicationEfficiency = 0.005F;
    Results().ChristiansenCU = -5;
    Results().HeermannHeinCU = 79.5F;
    Results().LowQuarterDU = 133.33333F;
    EXPECT_TRUE(SameText(CenterPivotResultsText(), "Average Depth:           0.00 inches\r\n"
                                                   "System Timer Setting:    %\r\n"
                                                   "Calculated Flow Rate:           .50 GPM\r\n"
                                                   "Water Application Efficiency:   .50%\r\n"
                                                   "\r\n"
                                                   "Cooeficients of Uniformity\r\n"
                                                   "Christiansen Method       CU = -05%\r\n"
                                                   "Heermann and Hein Method  CU = 80%\r\n"
                                                   "Low Quarter Distribution  CU = 133%\r\n" +
                                                       kRuleLine));
}

TEST_F(CenterPivotReportTest, ApplicationRateIsALineWithoutAUnitOrNothing) {
    FillTest();
    EXPECT_TRUE(SameText(CenterPivotApplicationRateText(), "Application Rate at Last Tower: 2.46\r\n"));
    Test().MeasuredFlowRate = "";
    EXPECT_TRUE(SameText(CenterPivotApplicationRateText(), "Application Rate at Last Tower: 2.22\r\n"));
    for (const char* blank : {"", "   "}) {
        FillTest();
        Test().RadLastSprinkler = blank;
        EXPECT_EQ(CenterPivotApplicationRateText(), "");
    }
    FillTest();
    Test().MeasuredFlowRate = "0";
    EXPECT_EQ(CenterPivotApplicationRateText(), "");
}

const std::string kIntroduction =
    "Uniformity Analysis:\r\n"
    "The degree of uniform water delivery is indicated by the coefficient(s) of uniformity. The Christensen "
    "uniformity is the simplest expression to calculate. An acceptable uniformity coefficient is one greater than "
    "80%. Your Christensen uniformity coefficient is ";
const std::string kBelow =
    ". Since your coefficient is below 80% measures should be taken to improve the water delivery. In many cases a "
    "uniformity below 80% is indicative of a worn sprinkler package. Unless there are specific points in the field "
    "that need attention you might consider installing a new sprinkler package. \r\n\r\n";
const std::string kAbove =
    ". Since your coefficient is above 80% no specific recommendations for improvement are "
    "being made. \r\n\r\n";
const std::string kPoints =
    "If there are specific points in the fields where improvements may be needed they will be indicated on the "
    "report by either red (for low) or blue (for high). These points recorded a variation greater than 20% from "
    "the average. Check sprinklers at or near these points for proper operation. Items to look for include proper "
    "rotation (if the sprinkler rotates), worn nozzles, clogged nozzles and leaks that may have been collected by "
    "the data collection cups. \r\n\r\n";
const std::string kLowQuarter =
    "The low quarter DU is an indication of the percentage of water that the lowest 25% of the data gets compared "
    "to the average amount of water collected (all the data). In your particular situation it means that the "
    "amount of water collected by the lowest 25% of the data was ";
const std::string kVariability =
    " of the average amount of all the data collected. A low quarter uniformity close to 100% means the system has "
    "less variability in its output or uniformity.\r\n\r\n";
const std::string kEfficiency =
    "The Water Application Efficiency (WAE) is an indication of how much of the water pumped is actually getting "
    "to the crop. WAE varies depending on the type sprinkler package, time of day, and prevailing weather (wind) "
    "conditions. A WAE greater than 80% is desirable. Your WAE of ";
const std::string kNotNecessarily = "% indicates that improvements are not necessarily indicated.\r\n\r\n";
const std::string kImprovements =
    "% indicates that improvements are indicated. To find out what specific recomendation(s) you might consider to "
    "improve the WAE for this system you should contact an irrigation dealer/consultant familiar with the "
    "management and design of irrigation systems.\r\n\r\n";

TEST_F(CenterPivotReportTest, UniformityAnalysisOfAGoodSystem) {
    Results().ChristiansenCU = 88;
    Results().LowQuarterDU = 83.5F;
    Results().ApplicationEfficiency = 0.871412F;
    EXPECT_TRUE(SameText(CenterPivotUniformityText(), kIntroduction + "88%" + kAbove + kPoints + kLowQuarter +
                                                          "84%" + kVariability + kEfficiency + "87.14" +
                                                          kNotNecessarily + kRuleLine));
}

TEST_F(CenterPivotReportTest, UniformityAnalysisOfAPoorSystem) {
    Results().ChristiansenCU = 61.4F;
    Results().LowQuarterDU = 7.4F;
    Results().ApplicationEfficiency = 0.5F;
    EXPECT_TRUE(SameText(CenterPivotUniformityText(), kIntroduction + "61%" + kBelow + kPoints + kLowQuarter +
                                                          "07%" + kVariability + kEfficiency + "50." +
                                                          kImprovements + kRuleLine));
}

TEST_F(CenterPivotReportTest, UniformityAnalysisWithoutAnEfficiency) {
    for (const float efficiency : {0.0F, -0.5F}) {
        Results().ApplicationEfficiency = efficiency;
        EXPECT_TRUE(SameText(CenterPivotUniformityText(), kIntroduction + "00%" + kBelow + kPoints +
                                                              kLowQuarter + "00%" + kVariability +
                                                              kRuleLine));
    }
}

TEST_F(CenterPivotReportTest, PrintsARoundedUniformityButTestsTheExactOne) {
    struct Case {
        float uniformity;
        const char* printed;
        bool isBelow;
    };
    const std::array cases = {
        Case{80, "80%", false},   Case{std::nextafter(80.0F, 0.0F), "80%", true},
        Case{79.6F, "80%", true}, Case{79.5F, "80%", true},
        Case{79.4F, "79%", true}, Case{80.4F, "80%", false},
        Case{100, "100%", false}, Case{-5, "-05%", true},
    };
    for (const Case& row : cases) {
        Results().ChristiansenCU = row.uniformity;
        const std::string beginning = kIntroduction + row.printed + (row.isBelow ? kBelow : kAbove);
        EXPECT_TRUE(SameText(CenterPivotUniformityText().substr(0, beginning.size()), beginning))
            << row.uniformity;
    }
}

TEST_F(CenterPivotReportTest, PrintsARoundedEfficiencyButTestsTheExactOne) {
    struct Case {
        float efficiency;
        const char* printed;
        bool isGood;
    };
    const std::array cases = {
        Case{0.8F, "80.", true},         Case{std::nextafter(0.8F, 0.0F), "80.", false},
        Case{0.79999F, "80.", false},    Case{0.7999F, "79.99", false},
        Case{0.8005F, "80.05", true},    Case{0.855F, "85.5", true},
        Case{12.3456F, "1234.56", true}, Case{0.0001F, ".01", false},
        Case{0.00001F, ".", false},
    };
    for (const Case& row : cases) {
        Results().ApplicationEfficiency = row.efficiency;
        const std::string ending = kVariability + kEfficiency + row.printed +
                                   (row.isGood ? kNotNecessarily : kImprovements) + kRuleLine;
        EXPECT_TRUE(CenterPivotUniformityText().ends_with(ending)) << row.efficiency;
    }
}

TEST_F(CenterPivotReportTest, FollowsTheLocalesSeparators) {
    UseNumberLocale(testing::GermanNumbers());
    FillTest();
    Test().TotalAcres = "1234";
    Test().LengthOverhang = "40,5";
    Results().AverageDepth = 0.51F;
    Results().CalculatedFlowRate = 1234.5F;
    Results().ApplicationEfficiency = 0.855F;
    EXPECT_NE(CenterPivotFieldText().find("Estimated Acres: 1.234\r\n"), std::string::npos);
    EXPECT_NE(CenterPivotSystemText().find("System Length 1.421\r\n"), std::string::npos);
    EXPECT_NE(CenterPivotResultsText().find("0,51 inches\r\n"), std::string::npos);
    EXPECT_NE(CenterPivotResultsText().find(" 1.234,50 GPM\r\n"), std::string::npos);
    EXPECT_NE(CenterPivotResultsText().find(" 85,50%\r\n"), std::string::npos);
    EXPECT_NE(CenterPivotApplicationRateText().find(" 2,46\r\n"), std::string::npos);
    EXPECT_NE(CenterPivotUniformityText().find("Your WAE of 85,5% indicates"), std::string::npos);
}

TEST_F(CenterPivotReportTest, CommentsKeepTheirPaddingAndTheRecord) {
    Test().OtherComments = "  Repeat.\r\nSoon.";
    const std::string whole = "  Repeat.\r\nSoon." + std::string(2000 - 16, ' ');
    EXPECT_TRUE(SameText(CenterPivotCommentsText(),
                         "Other Comments / Recomendations:\r\n" + whole + "\r\n\r\n" + kRuleLine));
    EXPECT_EQ(Test().OtherComments.Whole(), whole);
}

TEST_F(CenterPivotReportTest, TrapsNoError) {
    FillTest();
    Test().PercentTimer = "abc";
    Test().TotalAcres = "abc";
    Test().LengthOverhang = "abc";
    ExpectRunTimeError(ErrorNumber::TypeMismatch, [] { std::ignore = CenterPivotFieldText(); });
    ExpectRunTimeError(ErrorNumber::TypeMismatch, [] { std::ignore = CenterPivotSystemText(); });
    ExpectRunTimeError(ErrorNumber::TypeMismatch, [] { std::ignore = CenterPivotResultsText(); });
    ExpectRunTimeError(ErrorNumber::TypeMismatch, [] { std::ignore = CenterPivotApplicationRateText(); });
    Test().DistanceToTower = "3e38";
    Test().LengthOverhang = "3e38";
    ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = CenterPivotSystemText(); });
    Test().LengthOverhang = "-3e38";
    ExpectRunTimeError(ErrorNumber::DivisionByZero, [] { std::ignore = CenterPivotApplicationRateText(); });
}

TEST_F(CenterPivotReportTest, RaisesOverflowForAResultThatIsNoNumber) {
    Results().AverageDepth = std::numeric_limits<float>::quiet_NaN();
    ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = CenterPivotResultsText(); });
    Results().LowQuarterDU = std::numeric_limits<float>::infinity();
    ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = CenterPivotUniformityText(); });
}

} // namespace
} // namespace orvel
