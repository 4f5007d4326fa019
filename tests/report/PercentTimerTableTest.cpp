// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/PercentTimerTable.h"

#include "core/Text.h"
#include "tests/report/ReportFixture.h"

#include <gtest/gtest.h>
#include <string>

namespace orvel {

namespace {

using testing::RunsText;
using testing::SameText;

// Travel of 100 feet in 10 minutes at 50 %, 1000 feet from the pivot: 5.236 hours at full speed.
class PercentTimerTable : public testing::ReportTest {
protected:
    PercentTimerTable() {
        Pivot().TravelSpeedFeet = "100";
        Pivot().TravelSpeedMinutes = "10";
        Pivot().TravelSpeedSeconds = "0";
        Pivot().PercentTimer = "50";
        Pivot().DistanceToTower = "1000";
        PivotResults().AverageDepth = 0.6F;
    }

    std::string Make() {
        text.clear();
        runs = {};
        AppendPercentTimerTable(text, runs);
        return text;
    }

    std::string text;
    ColorRunTable runs;
};

TEST_F(PercentTimerTable, ListsEverySettingWithItsTimeAndDepth) {
    EXPECT_TRUE(SameText(Make(), "Percent Timer Analysis\r\n"
                                 "\r\n"
                                 "    Timer      Time For     Average\r\n"
                                 "  Setting    Full Circle     Inches\r\n"
                                 "  Percent        Hours      Applied\r\n"
                                 "============ ============ ============\r\n"
                                 "    100           5.24         0.30\r\n"
                                 "     90           5.82         0.33\r\n"
                                 "     80           6.54         0.38\r\n"
                                 "     70           7.48         0.43\r\n"
                                 "     60           8.73         0.50\r\n"
                                 "     50*         10.47         0.60\r\n"
                                 "     40          13.09         0.75\r\n"
                                 "     30          17.45         1.00\r\n"
                                 "     20          26.18         1.50\r\n"
                                 "     10          52.36         3.00\r\n"
                                 "\r\n"
                                 "* denotes tested timer setting\r\n" +
                                     RuleLine()));
    EXPECT_EQ(RunsText(runs, text), "3 369+1 '*'\n");
}

TEST_F(PercentTimerTable, TheMarkIsCountedFromTheBeginningOfTheReport) {
    text = "12345\r\n";
    AppendPercentTimerTable(text, runs);
    EXPECT_TRUE(text.starts_with("12345\r\nPercent Timer Analysis\r\n"));
    EXPECT_EQ(static_cast<std::size_t>(runs.ColorRunStart[1]), text.find("50*") + 2);
}

TEST_F(PercentTimerTable, ASettingBetweenTheTensStandsInItsOrder) {
    Pivot().PercentTimer = "45";
    EXPECT_NE(Make().find("     50           9.42         0.54\r\n"
                          "     45*         10.47         0.60\r\n"
                          "     40          11.78         0.68\r\n"),
              std::string::npos)
        << text;
    Pivot().PercentTimer = "7.5";
    EXPECT_NE(Make().find("     10           7.85         0.45\r\n"
                          "      8*         10.47         0.60\r\n"
                          "\r\n"),
              std::string::npos)
        << text;
    Pivot().PercentTimer = "120";
    EXPECT_NE(Make().find("============\r\n"
                          "    120*         10.47         0.60\r\n"
                          "    100          12.57         0.72\r\n"),
              std::string::npos)
        << text;
}

TEST_F(PercentTimerTable, IsLeftOutWhereNoTimeCanBeComputed) {
    const CenterPivotTest good = Pivot();
    const auto isLeftOut = [this, &good](auto field, const char* value) {
        Pivot() = good;
        Pivot().*field = value;
        return Make().empty() && runs.ColorRunCount == 0;
    };
    for (const char* value : {"", "fast", "0"}) {
        EXPECT_TRUE(isLeftOut(&CenterPivotTest::TravelSpeedFeet, value)) << value;
        EXPECT_TRUE(isLeftOut(&CenterPivotTest::TravelSpeedMinutes, value)) << value;
        EXPECT_TRUE(isLeftOut(&CenterPivotTest::PercentTimer, value)) << value;
        EXPECT_TRUE(isLeftOut(&CenterPivotTest::DistanceToTower, value)) << value;
    }
    EXPECT_TRUE(isLeftOut(&CenterPivotTest::TravelSpeedSeconds, ""));
    EXPECT_FALSE(isLeftOut(&CenterPivotTest::TravelSpeedSeconds, "30"));
    EXPECT_TRUE(isLeftOut(&CenterPivotTest::TravelSpeedFeet, "-100"));
    EXPECT_TRUE(isLeftOut(&CenterPivotTest::PercentTimer, "-50"));
    EXPECT_TRUE(isLeftOut(&CenterPivotTest::DistanceToTower, "-1000"));
}

TEST_F(PercentTimerTable, AFigureThatNoSingleHoldsLeavesTheTableOutAndEndsNothing) {
    PivotResults().AverageDepth = 3.0e38F;
    EXPECT_EQ(Make(), "");
}

TEST_F(PercentTimerTable, WideNumbersAreNotCut) {
    Pivot().TravelSpeedFeet = "0.0000001";
    Make();
    EXPECT_NE(text.find("    100  5235988000.00         0.30\r\n"), std::string::npos) << text;
}

} // namespace

} // namespace orvel
