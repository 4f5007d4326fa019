// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/CenterPivotReportBuild.h"

#include "centerpivot/CenterPivot.h"
#include "core/CodePage.h"
#include "core/RecordFiles.h"
#include "core/Text.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>
#include <string>

namespace orvel {

namespace {

using orvel::testing::Example;
using orvel::testing::ExpectRunTimeError;
using orvel::testing::GenerationErrorMessage;
using orvel::testing::GermanNumbers;
using orvel::testing::MatchesGolden;

// The report of the 1978 test, told at a fixed moment by a fixed person.
class CenterPivotReportBuild : public orvel::testing::LogicTest {
protected:
    CenterPivotReportBuild() {
        ResetCenterPivot();
        ProgramState& program = Program();
        program.centerPivotFile = Example("pivot-1978.cpd");
        program.centerPivotTest = ReadTest<CenterPivotTest>(program.centerPivotFile);
        program.userSettings.Name = "Ida Lund";
        program.userSettings.Company = "County Extension Service";
        program.userSettings.Address = "4 Court Square";
        program.userSettings.CityStateZip = "Alder Creek, XX 00000";
        program.userSettings.Phone = "555-0100";
        program.userSettings.EMail = "ida@extension.example";
    }

    static CenterPivotTest& Test() { return Program().centerPivotTest; }

    std::string report;
};

TEST_F(CenterPivotReportBuild, TheReportOfThe1978TestIsAsItWas) {
    ASSERT_TRUE(BuildCenterPivotReport(report));
    EXPECT_TRUE(MatchesGolden(ToUtf8(report), "pivot-1978-report.txt"));
}

TEST_F(CenterPivotReportBuild, AReportFollowsTheLocalesSeparators) {
    UseNumberLocale(GermanNumbers());
    ASSERT_TRUE(BuildCenterPivotReport(report));
    EXPECT_TRUE(MatchesGolden(ToUtf8(report), "pivot-1978-report-german.txt"));
}

TEST_F(CenterPivotReportBuild, TheSectionsStandInTheirOrder) {
    ASSERT_TRUE(BuildCenterPivotReport(report));
    std::size_t last = 0;
    for (const char* beginning :
         {"Center Pivot Water Application Uniformity Test",
          "\r\nTest Conducted For:", "\r\nField Information\r\n", "\r\nSystem Information\r\n",
          "\r\nAverage Depth:", "\r\nApplication Rate at Last Tower: ", "\r\nUniformity Analysis:\r\n",
          "\r\nOther Comments / Recomendations:\r\n"}) {
        const std::size_t place = report.find(beginning);
        ASSERT_NE(place, std::string::npos) << beginning;
        EXPECT_GE(place, last) << beginning;
        last = place;
    }
    EXPECT_TRUE(report.ends_with("\r\n\r\n" + RuleLine()));
}

TEST_F(CenterPivotReportBuild, CommentsKeepTheirPadding) {
    Test().OtherComments = "  Two blanks stay.";
    ASSERT_TRUE(BuildCenterPivotReport(report));
    EXPECT_NE(report.find("Other Comments / Recomendations:\r\n  Two blanks stay." + std::string(1982, ' ') +
                          "\r\n\r\n"),
              std::string::npos);
}

TEST_F(CenterPivotReportBuild, ErrorsInTheDataLeaveOneSentenceAndNothingIsCalculated) {
    Test().ClientName = "";
    messageBox.Expect({"You Have Errors That Will Prevent Report Creation.\r\n\r\n"
                       "You Should Enter the Client Name.\r\n\r\n\r\nPlease Correct Entries.",
                       "Errors in Data", Buttons::Ok, Icon::Critical});
    EXPECT_FALSE(BuildCenterPivotReport(report));
    EXPECT_EQ(report, "Errors in data file - report not created.");
    EXPECT_EQ(PivotResults().CupCount, 0);
}

TEST_F(CenterPivotReportBuild, WarningsDoNotStopTheReport) {
    Test().PercentTimer = "";
    messageBox.Expect(
        {"Potention Input Problems Were Found.\r\n\r\n"
         "The distance to the last tower;travel speed of the last tower; or percentage timer "
         "setting has not been entered. Without this information an application chart ( "
         "percentage timer chart) can not be generated. \r\n\r\n"
         "In order to calculate the GPM flow rate, the items required to compute the acreage and "
         "timer chart must be entered.\r\n\r\n"
         "In order to calculate the Water Application Efficiency data required to calculate the "
         "GPM flow rate and either estimated or measured flow rate must be entered.\r\n\r\n"
         "\r\n\r\nThese May Not Be Errors, But Should Be Checked.",
         "Possible Errors in Data", Buttons::Ok, Icon::Critical});
    EXPECT_TRUE(BuildCenterPivotReport(report));
    EXPECT_EQ(report.find("System Timer Setting"), std::string::npos);
    EXPECT_EQ(report.find("Calculated Flow Rate"), std::string::npos);
    EXPECT_EQ(report.find("Water Application Efficiency"), std::string::npos);
}

TEST_F(CenterPivotReportBuild, AnErrorThatTheCalculationTrapsLeavesAReportOfWhatStands) {
    for (int i = 1; i <= 56; ++i) {
        Test().Gauges[i].Footage = 0.0F;
    }
    messageBox.Expect(GenerationErrorMessage(6, "Overflow"));
    EXPECT_TRUE(BuildCenterPivotReport(report));
    EXPECT_NE(report.find("Christiansen Method       CU = 88%\r\n"), std::string::npos);
    EXPECT_NE(report.find("Heermann and Hein Method  CU = 00%\r\n"), std::string::npos);
    EXPECT_EQ(report.find("Irrigated Acres"), std::string::npos);
}

TEST_F(CenterPivotReportBuild, ThreeHundredReadingsPassTheErrorOfTheChecksOn) {
    for (int i = 1; i <= 300; ++i) {
        Test().Gauges[i].Volume = 100.0F;
    }
    report = "what stood before";
    ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange, [this] { (void)BuildCenterPivotReport(report); });
    EXPECT_EQ(report, "what stood before");
}

TEST_F(CenterPivotReportBuild, AnEntryThatIsNoNumberPassesTheErrorOfTheSectionOn) {
    Test().PercentTimer = "forty";
    report = "what stood before";
    ExpectRunTimeError(ErrorNumber::TypeMismatch, [this] { (void)BuildCenterPivotReport(report); });
    EXPECT_EQ(report, "what stood before");
}

} // namespace

} // namespace orvel
