// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "centerpivot/CenterPivot.h"

#include "tests/centerpivot/PivotFixture.h"

#include <array>
#include <limits>
#include <string>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;
using testing::NumberField;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

// The steps behind the uniformity, each run by itself: one inch on one acre, 100 feet in 10 minutes at 50 %.
class CenterPivotFlow : public testing::PivotTest {
protected:
    CenterPivotFlow() { Restart(); }

    static void Restart() {
        ResetCenterPivot();
        PivotResults().AverageDepth = 1;
        Test() = {};
        Test().PercentTimer = "50";
        Test().DistanceToTower = "1000";
        Test().TravelSpeedFeet = "100";
        Test().TravelSpeedMinutes = "10";
        Test().TravelSpeedSeconds = "0";
        Test().TotalAcres = "1";
        Test().LengthOverhang = "40";
        Test().RadLastSprinkler = "35";
    }

    static float Flow() {
        PivotResults().CalculatedFlowRate = 0;
        ComputeFlowRate();
        return PivotResults().CalculatedFlowRate;
    }

    static float Efficiency() {
        PivotResults().ApplicationEfficiency = 0;
        ComputeEfficiency();
        return PivotResults().ApplicationEfficiency;
    }

    static std::string_view Beginning(const FixedText<20>& field) { return field.Whole().substr(0, 4); }
};

TEST_F(CenterPivotFlow, ComesFromTheTimeOfARevolution) {
    // 600 ft/h, 1200 ft/h at 100 %, 6283.19 ft around, 5.236 h at 100 %, 10.472 h at 50 %.
    EXPECT_EQ(Flow(), 43.258312F);
    EXPECT_NEAR(453.0F / Flow(), 10.472, 0.0005);
    Test().TotalAcres = "100";
    PivotResults().AverageDepth = 0.5F;
    EXPECT_EQ(Flow(), 2162.9155F);
    Test().PercentTimer = "100";
    EXPECT_EQ(Flow(), 2162.9155F) << "the timer cancels out at a given travel speed";
}

TEST_F(CenterPivotFlow, AddsTheSecondsToTheMinutes) {
    Test().TravelSpeedMinutes = "9.5";
    Test().TravelSpeedSeconds = "30";
    EXPECT_FLOAT_EQ(Flow(), 43.258312F);
    Test().TravelSpeedMinutes = "0";
    Test().TravelSpeedSeconds = "600";
    EXPECT_FLOAT_EQ(Flow(), 43.258312F);
}

TEST_F(CenterPivotFlow, IsSilentlyZeroWhenAnEntryIsBlankFaultyOrZero) {
    struct Case {
        NumberField field;
        bool canBeZero;
    };
    constexpr std::array kCases = {
        Case{&CenterPivotTest::PercentTimer, false},      Case{&CenterPivotTest::DistanceToTower, false},
        Case{&CenterPivotTest::TravelSpeedFeet, false},   Case{&CenterPivotTest::TravelSpeedMinutes, false},
        Case{&CenterPivotTest::TravelSpeedSeconds, true}, Case{&CenterPivotTest::TotalAcres, false},
    };
    for (const Case& row : kCases) {
        for (const char* entry : {"", "abc", "1.2.3", "0"}) {
            Restart();
            Test().*row.field = entry;
            EXPECT_EQ(Flow() > 0, row.canBeZero && std::string(entry) == "0") << entry;
        }
    }
    Restart();
    PivotResults().AverageDepth = 0;
    EXPECT_EQ(Flow(), 0.0F);
    PivotResults().AverageDepth = kNaN;
    EXPECT_EQ(Flow(), 0.0F);
}

TEST_F(CenterPivotFlow, LeavesItsResultAsItIsWhenItFails) {
    Test().PercentTimer = "";
    PivotResults().CalculatedFlowRate = 5;
    ComputeFlowRate();
    EXPECT_EQ(PivotResults().CalculatedFlowRate, 5.0F);
    Test().MeasuredFlowRate = "abc";
    PivotResults().ApplicationEfficiency = 6;
    ComputeEfficiency();
    EXPECT_EQ(PivotResults().ApplicationEfficiency, 6.0F);
    // One that merely can't be computed is 0 by itself.
    Test().PercentTimer = "50";
    Test().TotalAcres = "";
    ComputeFlowRate();
    EXPECT_EQ(PivotResults().CalculatedFlowRate, 0.0F);
    Test().TotalAcres = "1";
    PivotResults().AverageDepth = kNaN;
    PivotResults().CalculatedFlowRate = 5;
    ComputeFlowRate();
    EXPECT_EQ(PivotResults().CalculatedFlowRate, 0.0F) << "what is not a number counts as zero";
    Test().MeasuredFlowRate = "";
    ComputeEfficiency();
    EXPECT_EQ(PivotResults().ApplicationEfficiency, 0.0F);
}

TEST_F(CenterPivotFlow, PrefersIrrigatedAcresToTheEstimate) {
    PivotResults().IrrigatedAcres = 2;
    EXPECT_FLOAT_EQ(Flow(), 2 * 43.258312F);
    Test().TotalAcres = "";
    EXPECT_FLOAT_EQ(Flow(), 2 * 43.258312F);
    Test().TotalAcres = "abc";
    EXPECT_EQ(Flow(), 0.0F) << "the estimate is read in any case";
    Test().TotalAcres = "1";
    PivotResults().IrrigatedAcres = -2;
    EXPECT_FLOAT_EQ(Flow(), 43.258312F);
    PivotResults().IrrigatedAcres = kNaN;
    EXPECT_FLOAT_EQ(Flow(), 43.258312F);
}

TEST_F(CenterPivotFlow, TrimsTheEstimatedAcresWhenItGetsThere) {
    Test().TotalAcres = "  1";
    Test().PercentTimer = "";
    EXPECT_EQ(Flow(), 0.0F);
    EXPECT_EQ(Beginning(Test().TotalAcres), "  1 ");
    Test().PercentTimer = "50";
    EXPECT_GT(Flow(), 0.0F);
    EXPECT_EQ(Beginning(Test().TotalAcres), "1   ");
}

TEST_F(CenterPivotFlow, EfficiencyComparesWithTheMeasuredFlowElseTheEstimate) {
    PivotResults().CalculatedFlowRate = 800;
    EXPECT_EQ(Efficiency(), 0.0F) << "no flow rate";
    Test().EstFlowRate = " 1600";
    EXPECT_EQ(Efficiency(), 0.5F);
    Test().MeasuredFlowRate = " 1000";
    EXPECT_EQ(Efficiency(), 0.8F);
    EXPECT_EQ(Beginning(Test().EstFlowRate), "1600");
    EXPECT_EQ(Beginning(Test().MeasuredFlowRate), "1000");
    Test().EstFlowRate = "";
    EXPECT_EQ(Efficiency(), 0.8F);
    Test().MeasuredFlowRate = "0";
    EXPECT_EQ(Efficiency(), 0.0F);
    Test().EstFlowRate = "1600";
    EXPECT_EQ(Efficiency(), 0.0F) << "a measured flow of 0 wins, too";
    PivotResults().CalculatedFlowRate = 0;
    Test().MeasuredFlowRate = "1000";
    EXPECT_EQ(Efficiency(), 0.0F);
}

TEST_F(CenterPivotFlow, EfficiencyIsSilentlyZeroWhenAFlowRateIsFaulty) {
    PivotResults().CalculatedFlowRate = 800;
    Test().EstFlowRate = " abc";
    Test().MeasuredFlowRate = " 1000";
    EXPECT_EQ(Efficiency(), 0.0F) << "the estimate is read first";
    EXPECT_EQ(Beginning(Test().EstFlowRate), "abc ");
    EXPECT_EQ(Beginning(Test().MeasuredFlowRate), " 100");
    Test().EstFlowRate = "1000";
    Test().MeasuredFlowRate = "abc";
    EXPECT_EQ(Efficiency(), 0.0F);
    Test().MeasuredFlowRate = "1e-40";
    EXPECT_EQ(Efficiency(), 0.0F) << "overflows";
}

TEST_F(CenterPivotFlow, BothAreZeroedByTheCalculationJustBeforeTheirSteps) {
    FillTest();
    CalculateCenterPivot();
    ASSERT_GT(PivotResults().ApplicationEfficiency, 0.0F);
    // The checks ask for no seconds, the flow rate needs them.
    Test().TravelSpeedSeconds = "";
    CalculateCenterPivot();
    EXPECT_EQ(PivotResults().CalculatedFlowRate, 0.0F);
    EXPECT_EQ(PivotResults().ApplicationEfficiency, 0.0F);
    Test().TravelSpeedSeconds = "0";
    CalculateCenterPivot();
    ASSERT_GT(PivotResults().ApplicationEfficiency, 0.0F);
    Test().MeasuredFlowRate = "abc";
    CalculateCenterPivot();
    EXPECT_GT(PivotResults().CalculatedFlowRate, 0.0F);
    EXPECT_EQ(PivotResults().ApplicationEfficiency, 0.0F);
}

TEST_F(CenterPivotFlow, ApplicationRateOfTheLastTower) {
    Test().DistanceToTower = " 1380";
    Test().LengthOverhang = " 40";
    Test().RadLastSprinkler = " 35";
    Test().EstFlowRate = "900";
    EXPECT_EQ(ApplicationRateAtLastTower(), 2.2183099F);
    Test().MeasuredFlowRate = "1000";
    EXPECT_EQ(ApplicationRateAtLastTower(), 2.4647887F);
    EXPECT_EQ(Beginning(Test().DistanceToTower), "1380");
    EXPECT_EQ(Beginning(Test().LengthOverhang), "40  ");
    EXPECT_EQ(Beginning(Test().RadLastSprinkler), "35  ");
    Test().DistanceToTower = "16777216";
    Test().LengthOverhang = "1";
    Test().RadLastSprinkler = "1";
    EXPECT_EQ(ApplicationRateAtLastTower(), 0.0073015690F) << "the lengths are summed as a Single";
}

TEST_F(CenterPivotFlow, HasNoApplicationRateWhenSomethingIsMissing) {
    constexpr std::array kFields = {&CenterPivotTest::MeasuredFlowRate, &CenterPivotTest::DistanceToTower,
                                    &CenterPivotTest::LengthOverhang, &CenterPivotTest::RadLastSprinkler};
    for (NumberField blank : kFields) {
        Restart();
        Test().MeasuredFlowRate = "1000";
        ASSERT_TRUE(ApplicationRateAtLastTower());
        Test().*blank = "   ";
        EXPECT_FALSE(ApplicationRateAtLastTower());
    }
    Restart();
    Test().MeasuredFlowRate = "0";
    Test().EstFlowRate = "900";
    EXPECT_FALSE(ApplicationRateAtLastTower());
}

TEST_F(CenterPivotFlow, ApplicationRateTrapsNothing) {
    constexpr std::array kFields = {&CenterPivotTest::EstFlowRate, &CenterPivotTest::MeasuredFlowRate,
                                    &CenterPivotTest::DistanceToTower, &CenterPivotTest::LengthOverhang,
                                    &CenterPivotTest::RadLastSprinkler};
    const auto rate = [] { std::ignore = ApplicationRateAtLastTower(); };
    for (NumberField faulty : kFields) {
        Restart();
        Test().MeasuredFlowRate = "1000";
        Test().*faulty = "abc";
        ExpectRunTimeError(ErrorNumber::TypeMismatch, rate);
    }
    Restart();
    Test().MeasuredFlowRate = "1000";
    Test().RadLastSprinkler = "0";
    ExpectRunTimeError(ErrorNumber::DivisionByZero, rate);
    Test().RadLastSprinkler = "1e-40";
    ExpectRunTimeError(ErrorNumber::Overflow, rate);
}

} // namespace
} // namespace orvel
