// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "centerpivot/CenterPivotSummary.h"

#include "tests/centerpivot/PivotFixture.h"

#include <limits>
#include <tuple>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;
using testing::GenerationErrorMessage;
using testing::SameText;

class CenterPivotSummaryTest : public testing::PivotTest {
protected:
    CenterPivotSummaryTest() {
        Test().GuageDiameter = "10";
        // 0.5, 0.512 and 0.6 inches.
        SetCups({99.745F, 102.139F, 119.694F}, {30, 50, 70});
    }
};

TEST_F(CenterPivotSummaryTest, HasALineForEachCup) {
    EXPECT_TRUE(SameText(BuildCenterPivotSummary(), "1,30,0.50\r\n2,50,0.51\r\n3,70,0.60\r\n"));
}

TEST_F(CenterPivotSummaryTest, RunsTheCalculationItself) {
    PivotResults().CupCount = 1;
    Row(1).Depth = 9;
    EXPECT_TRUE(BuildCenterPivotSummary().starts_with("1,30,0.50\r\n2,"));
    EXPECT_EQ(PivotResults().CupCount, 3);
    Test().Gauges[2].Volume = 0;
    Test().Gauges[3].Volume = 0;
    EXPECT_TRUE(SameText(BuildCenterPivotSummary(), "1,30,0.50\r\n"));
}

TEST_F(CenterPivotSummaryTest, CountsTheCupsWhateverTheirPositionSays) {
    Test().Gauges[1].Sequence = 17;
    Test().Gauges[2].Volume = 0;
    EXPECT_TRUE(SameText(BuildCenterPivotSummary(), "1,30,0.50\r\n2,50,0.00\r\n3,70,0.60\r\n"));
}

TEST_F(CenterPivotSummaryTest, WritesDistancesInTheirShortestFixedForm) {
    SetCups({100, 100, 100, 100, 100, 100, 4000}, {32.5F, 0.1F, 100000, 1e10F, 1e-5F, -0.0F, 1234567.0F});
    EXPECT_TRUE(SameText(BuildCenterPivotSummary(), "1,32.5,0.50\r\n"
                                                    "2,0.1,0.50\r\n"
                                                    "3,100000,0.50\r\n"
                                                    "4,10000000000,0.50\r\n"
                                                    "5,0.00001,0.50\r\n"
                                                    "6,0,0.50\r\n"
                                                    "7,1234567,20.05\r\n"));
}

TEST_F(CenterPivotSummaryTest, WritesPointsInEveryLocale) {
    UseNumberLocale(testing::GermanNumbers());
    Test().GuageDiameter = "10,0";
    Test().Gauges[2].Footage = 1050.5F;
    EXPECT_TRUE(SameText(BuildCenterPivotSummary(), "1,30,0.50\r\n2,1050.5,0.51\r\n3,70,0.60\r\n"));
}

TEST_F(CenterPivotSummaryTest, IsEmptyWithoutCups) {
    SetVolumes({});
    messageBox.Expect(GenerationErrorMessage(6, "Overflow"));
    EXPECT_EQ(BuildCenterPivotSummary(), "");
}

TEST_F(CenterPivotSummaryTest, WritesWhatStandsAfterAnErrorBehindTheDepths) {
    SetCups({99.745F, 102.139F}, {0, 0});
    messageBox.Expect(GenerationErrorMessage(6, "Overflow"));
    EXPECT_TRUE(SameText(BuildCenterPivotSummary(), "1,0,0.50\r\n2,0,0.51\r\n"));
}

TEST_F(CenterPivotSummaryTest, WritesTheEarlierTestsCupsWhenTheCountFails) {
    const std::string earlier = BuildCenterPivotSummary();
    SetEqualVolumes(300);
    messageBox.Expect(GenerationErrorMessage(9, "Subscript out of range"));
    EXPECT_TRUE(SameText(BuildCenterPivotSummary(), earlier));
}

TEST_F(CenterPivotSummaryTest, WritesEarlierDepthsWhenTheDiameterIsFaulty) {
    EXPECT_NE(BuildCenterPivotSummary(), "");
    SetCups({5, 5, 5, 5}, {1, 2, 3, 4});
    Test().GuageDiameter = "abc";
    messageBox.Expect(GenerationErrorMessage(13, "Type mismatch"));
    EXPECT_TRUE(SameText(BuildCenterPivotSummary(), "1,1,0.50\r\n2,50,0.51\r\n3,70,0.60\r\n4,0,0.00\r\n"));
}

TEST_F(CenterPivotSummaryTest, RaisesOverflowForADistanceThatIsNoNumber) {
    Test().Gauges[2].Footage = std::numeric_limits<float>::quiet_NaN();
    messageBox.Expect(GenerationErrorMessage(6, "Overflow"));
    ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = BuildCenterPivotSummary(); });
}

} // namespace
} // namespace orvel
