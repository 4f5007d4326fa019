// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "solidset/SolidSetReport.h"

#include "tests/solidset/SolidSetFixture.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <tuple>

namespace orvel {

namespace {

using testing::ExpectRunTimeError;
using testing::kRule;
using testing::kRuleLine;
using testing::SameText;

class SolidSetReport : public testing::SolidTest {
protected:
    SolidSetReport() { FillTest(); }

    static SolidSetResults& Results() { return SolidResults(); }
};

TEST_F(SolidSetReport, HeadingNamesTestClientAndTester) {
    Test().ClientName = "  Marsh Hollow Nursery";
    Test().EMail = " yard@nursery.example";
    Program().solidSetFile = "folder/block7.ssd";
    Program().userSettings.Name = "Ida Lund";
    Program().userSettings.EMail = "ida@extension.example";
    EXPECT_TRUE(SameText(
        SolidSetHeadingText(),
        "                  Solid Set Water Application Uniformity Test                   \r\n" + kRuleLine +
            "Date of Test: 06/12/1997\r\n"
            "File Name:    block7.ssd\r\n"
            "Report Date:  2026-07-04 09:05:03\r\n" +
            kRuleLine +
            "Test Conducted For:                For Further Information Contact:\r\n"
            "Marsh Hollow Nursery               Ida Lund\r\n"
            "River Block                        E-Mail: ida@extension.example\r\n"
            "D. Okafor                          \r\n"
            "48 Sawmill Lane                    \r\n"
            "Marsh Hollow, XX, 00000            \r\n"
            "Sample County                      \r\n"
            "555-0139                           \r\n"
            "E-Mail: yard@nursery.example       \r\n" +
            kRuleLine));
    EXPECT_TRUE(Test().ClientName.Whole().starts_with("Marsh"));
    EXPECT_TRUE(Test().EMail.Whole().starts_with("yard"));
}

TEST_F(SolidSetReport, FieldSectionWithEveryLine) {
    Test().FieldName = "  Block 7";
    Test().SoilSlope = " 0-1 Percent";
    EXPECT_TRUE(SameText(SolidSetFieldText(), "Field Information\r\n"
                                              "Field Name:          Block 7\r\n"
                                              "Estimated Area:      2.5\r\n"
                                              "Soil Type:           Sandy Loam\r\n"
                                              "Soil Slope:          0-1 Percent\r\n"
                                              "Common Tillage:      No Till\r\n"
                                              "Predominate Crops:   Container stock\r\n"
                                              "Comments (field):    Level.\r\n" +
                                                  kRuleLine));
    EXPECT_TRUE(Test().FieldName.Whole().starts_with("Block"));
    EXPECT_TRUE(Test().SoilSlope.Whole().starts_with("0-1"));
}

TEST_F(SolidSetReport, FieldSectionLeavesOutPromptsAndBlanks) {
    Test() = NewSolidSetTest();
    EXPECT_TRUE(SameText(SolidSetFieldText(), "Field Information\r\n"
                                              "Common Tillage:      Conventional\r\n" +
                                                  kRuleLine));
    Test() = {};
    EXPECT_TRUE(SameText(SolidSetFieldText(), "Field Information\r\n"
                                              "Soil Type:           \r\n"
                                              "Soil Slope:          \r\n" +
                                                  kRuleLine));
}

TEST_F(SolidSetReport, FieldSectionPrintsTheAreaAsItWasTyped) {
    Test() = NewSolidSetTest();
    Test().TotalAcres = "about 1234.56 m2";
    EXPECT_TRUE(SameText(SolidSetFieldText(), "Field Information\r\n"
                                              "Estimated Area:      about 1234.56 m2\r\n"
                                              "Common Tillage:      Conventional\r\n" +
                                                  kRuleLine));
}

TEST_F(SolidSetReport, SystemSectionWithEveryLine) {
    EXPECT_TRUE(SameText(SolidSetSystemText(), "System Information\r\n"
                                               "Sprinkler:           Nelson\r\n"
                                               "Sprikler Age :       4 years\r\n"
                                               "Sprinkler Spacing:   80 by 80 ft\r\n"
                                               "Estimated Flow Rate: 12\r\n"
                                               "Measured Flow Rate : 11.5\r\n"
                                               "Estimated Pressure:  50\r\n"
                                               "Measured Pressure:   48\r\n"
                                               "Leaks Observed:      True\r\n"
                                               "Operation Times:     Nighttime Only\r\n"
                                               "\r\n"
                                               "Comments:\r\n"
                                               "All turn.\r\n" +
                                                   kRuleLine));
}

TEST_F(SolidSetReport, SystemSectionOfANewTestPrintsEveryLabelAndThePrompts) {
    Test() = NewSolidSetTest();
    EXPECT_TRUE(SameText(SolidSetSystemText(), "System Information\r\n"
                                               "Sprinkler:           Sprinkler Manufacturer\r\n"
                                               "Sprikler Age :       \r\n"
                                               "Sprinkler Spacing:   \r\n"
                                               "Estimated Flow Rate: \r\n"
                                               "Measured Flow Rate : \r\n"
                                               "Estimated Pressure:  \r\n"
                                               "Measured Pressure:   \r\n"
                                               "Leaks Observed:      False\r\n"
                                               "Operation Times:     Choose Operating Time\r\n"
                                               "\r\n"
                                               "Comments:\r\n"
                                               "\r\n" +
                                                   kRuleLine));
}

TEST_F(SolidSetReport, SystemSectionTrimsEveryFieldInTheRecord) {
    Test().SystemManufacturer = "  Nelson  ";
    Test().SprinklerAge = "  4 years";
    Test().SystemComments = "  All turn.";
    Test().OperatingTimes = " At night";
    for (const testing::SolidNumberField field :
         {&SolidSetTest::SprinklerSpacing, &SolidSetTest::EstFlowRate, &SolidSetTest::MeasuredFlowRate,
          &SolidSetTest::EstimatedPressure, &SolidSetTest::MeasuredPressure}) {
        Test().*field = "  40 psi  ";
    }
    EXPECT_TRUE(SameText(SolidSetSystemText(), "System Information\r\n"
                                               "Sprinkler:           Nelson\r\n"
                                               "Sprikler Age :       4 years\r\n"
                                               "Sprinkler Spacing:   40 psi\r\n"
                                               "Estimated Flow Rate: 40 psi\r\n"
                                               "Measured Flow Rate : 40 psi\r\n"
                                               "Estimated Pressure:  40 psi\r\n"
                                               "Measured Pressure:   40 psi\r\n"
                                               "Leaks Observed:      True\r\n"
                                               "Operation Times:     At night\r\n"
                                               "\r\n"
                                               "Comments:\r\n"
                                               "All turn.\r\n" +
                                                   kRuleLine));
    for (const testing::SolidNumberField field :
         {&SolidSetTest::SprinklerSpacing, &SolidSetTest::EstFlowRate, &SolidSetTest::MeasuredFlowRate,
          &SolidSetTest::EstimatedPressure, &SolidSetTest::MeasuredPressure}) {
        EXPECT_EQ((Test().*field).Whole(), "40 psi              ");
    }
    EXPECT_EQ(Test().SprinklerAge.Whole(), "4 years                  ");
    EXPECT_TRUE(Test().SystemManufacturer.Whole().starts_with("Nelson "));
    EXPECT_TRUE(Test().OperatingTimes.Whole().starts_with("At night "));
    EXPECT_EQ(Test().SystemComments.Whole(), "All turn." + std::string(491, ' '));
}

TEST_F(SolidSetReport, ResultsWithEveryLine) {
    Results().SolidSetAverageDepth = 0.575F;
    Results().SolidSetApplicationRate = 1234.565F;
    Results().SolidSetCU = 7.4F;
    Results().SolidSetDU = 100;
    EXPECT_TRUE(SameText(SolidSetResultsText(), "Average Depth = 0.58 inches\r\n"
                                                "Application Rate = 1234.57 inches per hour\r\n"
                                                "\r\n"
                                                "Cooeficients of Uniformity:\r\n"
                                                "Christiansen Method       CU = 07%\r\n"
                                                "Low Quarter Distribution  CU = 100%\r\n" +
                                                    kRuleLine));
}

TEST_F(SolidSetReport, ResultsOfAFreshRunAreZero) {
    EXPECT_TRUE(SameText(SolidSetResultsText(), "Average Depth = 0.00 inches\r\n"
                                                "Application Rate = NOT COMPUTED\r\n"
                                                "\r\n"
                                                "Cooeficients of Uniformity:\r\n"
                                                "Christiansen Method       CU = 00%\r\n"
                                                "Low Quarter Distribution  CU = 00%\r\n" +
                                                    kRuleLine));
}

TEST_F(SolidSetReport, ResultsFollowTheirMasks) {
    Results().SolidSetAverageDepth = -0.25F;
    Results().SolidSetApplicationRate = 0.001F;
    Results().SolidSetCU = -5;
    Results().SolidSetDU = 79.5F;
    EXPECT_TRUE(SameText(SolidSetResultsText(), "Average Depth = -0.25 inches\r\n"
                                                "Application Rate = 0.00 inches per hour\r\n"
                                                "\r\n"
                                                "Cooeficients of Uniformity:\r\n"
                                                "Christiansen Method       CU = -05%\r\n"
                                                "Low Quarter Distribution  CU = 80%\r\n" +
                                                    kRuleLine));
}

TEST_F(SolidSetReport, ARateOfZeroOrLessIsNotComputed) {
    for (const float rate : {0.0F, -0.0F, -0.5F}) {
        Results().SolidSetApplicationRate = rate;
        EXPECT_NE(SolidSetResultsText().find("\r\nApplication Rate = NOT COMPUTED\r\n\r\n"),
                  std::string::npos)
            << rate;
    }
    Results().SolidSetApplicationRate = std::numeric_limits<float>::denorm_min();
    EXPECT_NE(SolidSetResultsText().find("\r\nApplication Rate = 0.00 inches per hour\r\n\r\n"),
              std::string::npos);
}

// The commentary around the low quarter's figure.
std::string Commentary(const std::string& lowQuarter) {
    return "\r\n"
           "If there are specific points in the fields where improvements may be needed they will be indicated "
           "on the report by either red (for low) or blue (for high). These points recorded a variation greater "
           "than 20% from the average. Check sprinklers at or near these points for proper operation. Items to "
           "look for include proper rotation (if the sprinkler rotates), worn nozzles, clogged nozzles and leaks "
           "that may have been collected by the data collection cups. \r\n\r\n"
           "The low quarter DU is an indication of the percentage of water that the lowest 25% of the data gets "
           "compared to the average amount of water collected (all the data). In your particular situation it "
           "means that the amount of water collected by the lowest 25% of the data was " +
           lowQuarter +
           " of the average amount of all the data collected. A low quarter uniformity close to 100% means the "
           "system has less variability in its output or uniformity.\r\n\r\n" +
           kRuleLine;
}

TEST_F(SolidSetReport, UniformityCommentaryQuotesTheLowQuarter) {
    struct Case {
        float lowQuarter;
        const char* printed;
    };
    for (const Case& row : {Case{85.3F, "85%"}, Case{7.4F, "07%"}, Case{79.6F, "80%"}, Case{84.5F, "85%"},
                            Case{0, "00%"}, Case{100, "100%"}, Case{133.33333F, "133%"}, Case{-5, "-05%"}}) {
        Results().SolidSetDU = row.lowQuarter;
        EXPECT_TRUE(SameText(SolidSetUniformityText(), Commentary(row.printed)));
    }
}

TEST_F(SolidSetReport, CommentsKeepTheirPaddingAndTheRecordAndEndWithTheRule) {
    Test().OtherComments = "  Repeat.\r\nSoon.";
    const std::string whole = "  Repeat.\r\nSoon." + std::string(3000 - 16, ' ');
    EXPECT_TRUE(SameText(SolidSetCommentsText(), "Comments:\r\n" + whole + "\r\n" + kRule));
    EXPECT_EQ(Test().OtherComments.Whole(), whole);
}

TEST_F(SolidSetReport, FollowsTheLocalesDecimalSeparator) {
    UseNumberLocale(testing::GermanNumbers());
    Results().SolidSetAverageDepth = 0.5F;
    Results().SolidSetApplicationRate = 1234.5F;
    Results().SolidSetDU = 85.3F;
    EXPECT_TRUE(SolidSetResultsText().starts_with("Average Depth = 0,50 inches\r\n"
                                                  "Application Rate = 1234,50 inches per hour\r\n"));
    EXPECT_TRUE(SameText(SolidSetUniformityText(), Commentary("85%")));
    EXPECT_NE(SolidSetFieldText().find("\r\nEstimated Area:      2.5\r\n"), std::string::npos)
        << "a text as it was typed";
}

TEST_F(SolidSetReport, RaisesOverflowForAResultThatIsNoNumber) {
    for (const auto result :
         {&SolidSetResults::SolidSetAverageDepth, &SolidSetResults::SolidSetApplicationRate,
          &SolidSetResults::SolidSetCU, &SolidSetResults::SolidSetDU}) {
        Results() = {};
        Results().*result = std::numeric_limits<float>::quiet_NaN();
        ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = SolidSetResultsText(); });
    }
    Results().SolidSetDU = std::numeric_limits<float>::infinity();
    ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = SolidSetUniformityText(); });
}

} // namespace

} // namespace orvel
