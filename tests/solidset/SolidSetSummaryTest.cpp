// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "solidset/SolidSetSummary.h"

#include "tests/solidset/SolidSetFixture.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <tuple>

namespace orvel {

namespace {

using testing::ExpectRunTimeError;
using testing::GenerationErrorMessage;
using testing::SameText;

class SolidSetSummary : public testing::SolidTest {
protected:
    SolidSetSummary() { FillTest(); }

    static void SetGrid(const char* x, const char* y) {
        Test().NumberX = x;
        Test().NumberY = y;
    }

    static void ExpectRaised(ErrorNumber number) {
        ExpectRunTimeError(number, [] { std::ignore = BuildSolidSetSummary(); });
    }
};

TEST_F(SolidSetSummary, RunsOverXOutsideAndYInside) {
    SetVolumes({100, 110, 120, 130, 140, 150});
    SetGrid("2", "3");
    EXPECT_TRUE(SameText(BuildSolidSetSummary(), "1,1,0.50\r\n1,2,0.55\r\n1,3,0.60\r\n"
                                                 "2,1,0.65\r\n2,2,0.70\r\n2,3,0.75\r\n"));
    SetGrid("3", "2");
    EXPECT_TRUE(SameText(BuildSolidSetSummary(), "1,1,0.50\r\n1,2,0.55\r\n2,1,0.60\r\n"
                                                 "2,2,0.65\r\n3,1,0.70\r\n3,2,0.75\r\n"));
}

TEST_F(SolidSetSummary, NumbersThePointsWhateverTheirPositionSays) {
    SetGrid("1", "3");
    for (int i = 1; i <= 3; ++i) {
        Test().Gauges[i].Sequence = 9;
        Test().Gauges[i].XAxis = 7;
        Test().Gauges[i].YAxis = 5;
    }
    EXPECT_TRUE(SameText(BuildSolidSetSummary(), "1,1,0.40\r\n1,2,0.50\r\n1,3,0.60\r\n"));
}

TEST_F(SolidSetSummary, RunsTheCalculationItself) {
    SetGrid("1", "2");
    SolidResults().SolidSetDepths[1] = 9;
    EXPECT_TRUE(SameText(BuildSolidSetSummary(), "1,1,0.40\r\n1,2,0.50\r\n"));
    EXPECT_EQ(SolidResults().SolidSetCupCount, 12);
    Test().GuageDiameter = "5";
    EXPECT_TRUE(SameText(BuildSolidSetSummary(), "1,1,1.60\r\n1,2,2.01\r\n"));
}

TEST_F(SolidSetSummary, WritesPointsBehindTheCountedCupsWithTheDepthThatStands) {
    SetVolumes({100, 110, 120});
    SetGrid("2", "2");
    EXPECT_TRUE(SameText(BuildSolidSetSummary(), "1,1,0.50\r\n1,2,0.55\r\n2,1,0.60\r\n2,2,0.00\r\n"));
    SolidResults().SolidSetDepths[4] = 1234.565F;
    EXPECT_TRUE(BuildSolidSetSummary().ends_with("\r\n2,2,1234.57\r\n"));
}

TEST_F(SolidSetSummary, LeavesOutCupsBehindTheGrid) {
    SetGrid("1", "1");
    EXPECT_TRUE(SameText(BuildSolidSetSummary(), "1,1,0.40\r\n"));
}

TEST_F(SolidSetSummary, WritesThreeHundredPointsAndRaisesAtTheNext) {
    SetGrid("12", "25");
    const std::string text = BuildSolidSetSummary();
    EXPECT_EQ(std::ranges::count(text, '\n'), 300);
    EXPECT_TRUE(text.ends_with("\r\n12,24,0.00\r\n12,25,0.00\r\n"));
    struct Case {
        const char* x;
        const char* y;
    };
    constexpr std::array kCases = {Case{"7", "43"}, Case{"301", "1"}, Case{"1", "301"},
                                   Case{"32767", "32767"}};
    for (const Case& row : kCases) {
        SetGrid(row.x, row.y);
        ExpectRaised(ErrorNumber::SubscriptOutOfRange);
    }
}

TEST_F(SolidSetSummary, IsEmptyWhereAnAxisHasNoPoints) {
    struct Case {
        const char* x;
        const char* y;
    };
    constexpr std::array kCases = {Case{"0", "4"}, Case{"4", "0"}, Case{"4", "-1"}, Case{"-1", "-1"}};
    for (const Case& row : kCases) {
        SetGrid(row.x, row.y);
        EXPECT_EQ(BuildSolidSetSummary(), "") << row.x << " by " << row.y;
    }
}

TEST_F(SolidSetSummary, ReadsTheAxesAsWholeNumbersTiesToEvenAndLeavesThemAsTheyStand) {
    SetGrid(" 0.5000001", "2.5");
    EXPECT_TRUE(SameText(BuildSolidSetSummary(), "1,1,0.40\r\n1,2,0.50\r\n"));
    EXPECT_EQ(Test().NumberX.Whole().substr(0, 2), " 0");
}

TEST_F(SolidSetSummary, RaisesForAnAxisThatIsNoNumberOnceItHasCalculated) {
    for (const char* faulty : {"", "   ", "four", "4x", "1.2.3"}) {
        ResetSolidSet();
        SetGrid(faulty, "4");
        ExpectRaised(ErrorNumber::TypeMismatch);
        EXPECT_EQ(SolidResults().SolidSetCupCount, 12);
        SetGrid("4", faulty);
        ExpectRaised(ErrorNumber::TypeMismatch);
    }
    SetGrid("4", "32768");
    ExpectRaised(ErrorNumber::Overflow);
    SetGrid("-40000", "4");
    ExpectRaised(ErrorNumber::Overflow);
}

TEST_F(SolidSetSummary, ShowsTheErrorOfTheCalculationAndWritesWhatStands) {
    SetGrid("1", "2");
    Test().Duration = "abc";
    messageBox.Expect(GenerationErrorMessage(13, "Type mismatch"));
    EXPECT_TRUE(SameText(BuildSolidSetSummary(), "1,1,0.40\r\n1,2,0.50\r\n"));
    // Without a diameter no depth is new.
    SetVolumes({5, 5, 5});
    Test().GuageDiameter = "";
    messageBox.Expect(GenerationErrorMessage(13, "Type mismatch"));
    EXPECT_TRUE(SameText(BuildSolidSetSummary(), "1,1,0.40\r\n1,2,0.50\r\n"));
    SetEqualVolumes(300);
    messageBox.Expect(GenerationErrorMessage(9, "Subscript out of range"));
    EXPECT_TRUE(SameText(BuildSolidSetSummary(), "1,1,0.40\r\n1,2,0.50\r\n"));
}

TEST_F(SolidSetSummary, WritesPointsInEveryLocale) {
    UseNumberLocale(testing::GermanNumbers());
    SetGrid("1,0", "2");
    Test().GuageDiameter = "10,0";
    SetVolumes({240000, 100});
    EXPECT_TRUE(SameText(BuildSolidSetSummary(), "1,1,1203.06\r\n1,2,0.50\r\n"));
}

TEST_F(SolidSetSummary, RaisesOverflowForADepthThatIsNoNumber) {
    SetGrid("4", "4");
    SolidResults().SolidSetDepths[13] = std::numeric_limits<float>::quiet_NaN();
    ExpectRaised(ErrorNumber::Overflow);
}

} // namespace

} // namespace orvel
