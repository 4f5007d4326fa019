// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ReportText.h"

#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <tuple>

namespace orvel {

namespace {

using testing::ExpectRunTimeError;
using testing::SameText;

class ReportText : public testing::LogicTest {};

TEST_F(ReportText, ALineIsItsLabelValueAndWhatStandsBehind) {
    EXPECT_EQ(ReportLine("Label: ", "value", " inches"), "Label: value inches\r\n");
    EXPECT_EQ(ReportLine(""), "\r\n");
}

TEST_F(ReportText, AFilledLineStandsOnlyWhenItsFieldIsFilledAndTrimsIt) {
    FixedText<10> field;
    EXPECT_EQ(FilledLine("Age: ", field), "");
    field = "  6 years";
    EXPECT_EQ(FilledLine("Age: ", field), "Age: 6 years\r\n");
    EXPECT_EQ(field.Whole(), "6 years   ");
}

TEST_F(ReportText, AChosenLineStandsUnlessThePromptDoes) {
    FixedText<12> field;
    EXPECT_EQ(ChosenLine("Slope: ", field, "Soil Slope"), "Slope: \r\n");
    field = " Soil Slope";
    EXPECT_EQ(ChosenLine("Slope: ", field, "Soil Slope"), "");
    field = "soil slope";
    EXPECT_EQ(ChosenLine("Slope: ", field, "Soil Slope"), "Slope: soil slope\r\n");
}

TEST_F(ReportText, APercentLineRoundsAtTheUnits) {
    struct Case {
        float percent;
        const char* printed;
    };
    for (const Case& row : {Case{7.4F, "07%"}, Case{79.6F, "80%"}, Case{79.5F, "80%"}, Case{79.4999F, "79%"},
                            Case{0, "00%"}, Case{100, "100%"}, Case{-5, "-05%"}, Case{-0.4F, "00%"}}) {
        EXPECT_EQ(PercentLine("CU = ", row.percent), std::string("CU = ") + row.printed + "\r\n");
        EXPECT_EQ(PercentText(row.percent), row.printed) << "a hundredth, and times 100 again";
    }
}

TEST_F(ReportText, TheSentencesHundredthIsASingleWithItsSevenDigits) {
    // A hundredth of it is a Single whose seven digits are 0.6750000; its own are 67.49999.
    EXPECT_EQ(PercentText(67.49999F), "68%");
    EXPECT_EQ(PercentLine("", 67.49999F), "67%\r\n");
}

TEST_F(ReportText, AResultThatIsNoNumberIsAnOverflow) {
    constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
    ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = PercentLine("", kNaN); });
    ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = PercentText(kNaN); });
    ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = LowQuarterParagraph(kNaN); });
}

TEST_F(ReportText, TheParagraphOnLowAndHighPoints) {
    EXPECT_TRUE(SameText(
        LowAndHighPointsParagraph(),
        "If there are specific points in the fields where improvements may be needed they will be indicated on "
        "the report by either red (for low) or blue (for high). These points recorded a variation greater than "
        "20% from the average. Check sprinklers at or near these points for proper operation. Items to look for "
        "include proper rotation (if the sprinkler rotates), worn nozzles, clogged nozzles and leaks that may "
        "have been collected by the data collection cups. \r\n\r\n"));
}

TEST_F(ReportText, TheParagraphOnTheLowQuarter) {
    EXPECT_TRUE(SameText(
        LowQuarterParagraph(85.3F),
        "The low quarter DU is an indication of the percentage of water that the lowest 25% of the data gets "
        "compared to the average amount of water collected (all the data). In your particular situation it "
        "means that the amount of water collected by the lowest 25% of the data was 85% of the average amount "
        "of all the data collected. A low quarter uniformity close to 100% means the system has less "
        "variability in its output or uniformity.\r\n\r\n"));
}

} // namespace

} // namespace orvel
