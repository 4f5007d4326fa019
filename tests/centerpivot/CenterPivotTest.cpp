// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "centerpivot/CenterPivot.h"

#include "tests/centerpivot/PivotFixture.h"
#include "tests/support/CatchCanCases.h"

#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;
using testing::GenerationErrorMessage;
using testing::kEarlier;
using testing::NumberField;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr const char* kTitle = "Center Pivot Water Application Uniformity Test";

class CenterPivotCalculation : public testing::PivotTest {
protected:
    static CenterPivotResults& Results() { return PivotResults(); }

    static void LeaveEarlierResults() {
        Results().ReportTitle = "earlier";
        Results().CupCount = 7;
        testing::LeaveEarlier(Results(), kSingles);
    }

    static void ExpectComputed(std::size_t count) { testing::ExpectNew(Results(), kSingles, count); }

    void CalculateWith(int number, const std::string& description) {
        messageBox.Expect(GenerationErrorMessage(number, description));
        CalculateCenterPivot();
    }

    void CalculateWithOverflow() { CalculateWith(6, "Overflow"); }

    void CalculateWithDivisionByZero() { CalculateWith(11, "Division by zero"); }

    void CalculateWithTypeMismatch() { CalculateWith(13, "Type mismatch"); }

    static constexpr std::array kSingles = {
        &CenterPivotResults::MaximumDepth,       &CenterPivotResults::AverageDepth,
        &CenterPivotResults::ChristiansenCU,     &CenterPivotResults::LowQuarterDU,
        &CenterPivotResults::HeermannHeinCU,     &CenterPivotResults::IrrigatedAcres,
        &CenterPivotResults::CalculatedFlowRate, &CenterPivotResults::ApplicationEfficiency,
    };
};

TEST_F(CenterPivotCalculation, FillsEveryResult) {
    FillTest();
    LeaveEarlierResults();
    CalculateCenterPivot();
    ExpectComputed(8);
    EXPECT_EQ(Results().ReportTitle.Whole(), kTitle + std::string(34, ' '));
    EXPECT_EQ(Results().CupCount, 8);
    // 800 cc in eight cups of 10 cm: 100 cc on average, 120 cc at most, 70 cc off the average together.
    EXPECT_FLOAT_EQ(Results().AverageDepth, 0.50127542F);
    EXPECT_FLOAT_EQ(Results().MaximumDepth, 0.6015305F);
    EXPECT_FLOAT_EQ(Results().ChristiansenCU, 91.25F);
    // The two lowest of eight are 80 and 90 cc.
    EXPECT_FLOAT_EQ(Results().LowQuarterDU, 85.0F);
    EXPECT_EQ(Results().IrrigatedAcres, 151.634491F);
    EXPECT_FLOAT_EQ(Results().ApplicationEfficiency, Results().CalculatedFlowRate / 1000.0F);
}

TEST_F(CenterPivotCalculation, WeighsHeermannAndHeinByTheDistance) {
    Test().GuageDiameter = "10";
    SetCups({80, 100, 120, 100}, {10, 20, 30, 40});
    CalculateCenterPivot();
    // Weighted mean 10400 / 100 = 104; deviations 24 x 10 + 4 x 20 + 16 x 30 + 4 x 40 = 960.
    EXPECT_FLOAT_EQ(Results().HeermannHeinCU, (1.0F - 960.0F / 10400.0F) * 100.0F);
    EXPECT_FLOAT_EQ(Results().ChristiansenCU, 90.0F);
    SetCups({80, 100, 120, 100}, {40, 30, 20, 10});
    CalculateCenterPivot();
    // Weighted mean 9600 / 100 = 96; deviations 16 x 40 + 4 x 30 + 24 x 20 + 4 x 10 = 1280.
    EXPECT_FLOAT_EQ(Results().HeermannHeinCU, (1.0F - 1280.0F / 9600.0F) * 100.0F);
    EXPECT_FLOAT_EQ(Results().ChristiansenCU, 90.0F);
}

TEST_F(CenterPivotCalculation, CountsUpToTheFirstPairOfZeroVolumes) {
    Test().GuageDiameter = "10";
    for (const testing::CountedList& row : testing::kCountedLists) {
        SetVolumes(row.volumes);
        CalculateCenterPivot();
        EXPECT_EQ(Results().CupCount, row.count);
        EXPECT_FLOAT_EQ(Results().AverageDepth, row.average * 0.0050127542F) << row.count;
    }
}

TEST_F(CenterPivotCalculation, ReachesEntry301With299And300Readings) {
    FillTest();
    for (const int readings : {299, 300}) {
        SCOPED_TRACE(readings);
        SetEqualVolumes(readings);
        LeaveEarlierResults();
        CalculateWith(9, "Subscript out of range");
        EXPECT_EQ(Results().ReportTitle.Trimmed(), kTitle);
        EXPECT_EQ(Results().CupCount, 7) << "the earlier test's";
        ExpectComputed(0);
    }
}

TEST_F(CenterPivotCalculation, LooksBehindTheLastEntryThoughOnlyThatIsMissing) {
    SetEqualVolumes(298);
    Test().Gauges[300].Volume = 5;
    CalculateWith(9, "Subscript out of range");
}

TEST_F(CenterPivotCalculation, WithoutCupsDividesZeroByZero) {
    FillTest();
    SetVolumes({0, 0, 5, 6});
    Test().GuageDiameter = "no cup reads this";
    LeaveEarlierResults();
    Row(1).Depth = 3.5F;
    CalculateWithOverflow();
    EXPECT_EQ(Results().CupCount, 0);
    EXPECT_EQ(Results().MaximumDepth, 3.5F) << "whatever row 1 holds";
    ExpectComputed(1);
}

TEST_F(CenterPivotCalculation, SpreadsAVolumeOverTheCupsOpening) {
    for (const testing::SpreadVolume& row : testing::kSpreadVolumes) {
        Test().GuageDiameter = row.diameter;
        SetVolumes({row.volume});
        CalculateCenterPivot();
        EXPECT_EQ(Row(1).Depth, row.depth) << row.diameter << " cm, " << row.volume << " cc";
        EXPECT_EQ(Results().MaximumDepth, row.depth);
    }
    EXPECT_EQ(std::lround(0.50127542F * 1e5F), 50128);
}

TEST_F(CenterPivotCalculation, CopiesPositionAndDistanceAndKeepsTheRowsAbove) {
    Test().GuageDiameter = "10";
    SetCups({10, 20, 30, 40}, {5, 6.5F, 7, 8});
    CalculateCenterPivot();
    SetCups({50, 60}, {1, 2.25F});
    Test().Gauges[2].Sequence = 12;
    CalculateCenterPivot();
    EXPECT_EQ(Row(2).Sequence, 12.0F);
    EXPECT_EQ(Row(2).Footage, 2.25F);
    EXPECT_FLOAT_EQ(Row(2).Depth, 0.30076525F);
    EXPECT_EQ(Row(3).Footage, 7.0F) << "the earlier test's";
    EXPECT_FLOAT_EQ(Row(4).Depth, 0.20051017F);
    EXPECT_EQ(Row(0).Depth, 0.0F);
}

TEST_F(CenterPivotCalculation, StopsAtACupThatHasNoDepth) {
    for (const testing::ImpossibleDepth& row : testing::kImpossibleDepths) {
        SCOPED_TRACE(row.diameter);
        FillTest();
        SetCups({row.volume, 6}, {11, 22});
        Test().GuageDiameter = row.diameter;
        LeaveEarlierResults();
        Row(1) = {91, 92, 93};
        Row(2) = {94, 95, 96};
        CalculateWith(row.number, row.description);
        EXPECT_EQ(Results().CupCount, 2);
        EXPECT_EQ(Row(1).Sequence, 1.0F);
        EXPECT_EQ(Row(1).Footage, 11.0F);
        EXPECT_EQ(Row(1).Depth, 93.0F);
        EXPECT_EQ(Row(2).Footage, 95.0F);
        ExpectComputed(0);
    }
}

TEST_F(CenterPivotCalculation, FindsTheLargestDepthWhereverItStands) {
    Test().GuageDiameter = "10";
    for (const std::vector<float>& volumes : {std::vector<float>{200, 1, 2}, {1, 200, 2}, {1, 2, 200}}) {
        SetVolumes(volumes);
        CalculateCenterPivot();
        EXPECT_EQ(Results().MaximumDepth, 1.0025508F);
    }
    SetVolumes({-300, -200});
    CalculateCenterPivot();
    EXPECT_EQ(Results().MaximumDepth, -1.0025508F) << "it starts from row 1, not from 0";
}

TEST_F(CenterPivotCalculation, EqualDepthsAreExactlyUniform) {
    for (const char* diameter : testing::kOddDiameters) {
        Test().GuageDiameter = diameter;
        for (const testing::EqualCups& row : testing::kEqualCups) {
            SetEqualVolumes(row.cups);
            CalculateCenterPivot();
            EXPECT_EQ(Results().ChristiansenCU, 100.0F) << row.cups;
            EXPECT_EQ(Results().HeermannHeinCU, 100.0F) << row.cups;
            EXPECT_EQ(Results().LowQuarterDU, row.lowQuarter) << row.cups;
            EXPECT_EQ(Results().AverageDepth, Results().MaximumDepth) << row.cups;
        }
    }
}

TEST_F(CenterPivotCalculation, TakesTheLowQuarterFromTheUnroundedQuarter) {
    Test().GuageDiameter = "10";
    // The two lowest, 60 and 70, over 2.5, over the average of 100.
    SetVolumes({110, 60, 120, 100, 130, 70, 110, 100, 90, 110});
    CalculateCenterPivot();
    EXPECT_FLOAT_EQ(Results().LowQuarterDU, 52.0F);
    EXPECT_FLOAT_EQ(Row(1).Depth, 0.55140298F) << "the depths themselves stay in their order";
}

TEST_F(CenterPivotCalculation, VolumesThatCancelOutEndItAfterTheAverage) {
    FillTest();
    SetVolumes({5, -5});
    LeaveEarlierResults();
    CalculateWithDivisionByZero();
    EXPECT_EQ(Results().AverageDepth, 0.0F);
    ExpectComputed(2);
}

TEST_F(CenterPivotCalculation, DistancesThatCannotWeighEndItInHeermannAndHein) {
    struct Case {
        std::vector<float> distances;
        int number;
        const char* description;
    };
    const std::array cases = {
        Case{{0, 0}, 6, "Overflow"},    Case{{10, -10}, 11, "Division by zero"},
        Case{{1, -2}, 6, "Overflow"}, // the products cancel out, and so do the deviations
        Case{{kNaN, 5}, 6, "Overflow"}, Case{{5, kInfinity}, 6, "Overflow"},
    };
    for (const Case& row : cases) {
        FillTest();
        SetCups({200, 100}, row.distances);
        Test().DistanceToTower = " 1380";
        LeaveEarlierResults();
        CalculateWith(row.number, row.description);
        ExpectComputed(4);
        EXPECT_EQ(Results().CalculatedFlowRate, kEarlier) << "zeroed only by its own step";
        EXPECT_EQ(Test().DistanceToTower.Whole().substr(0, 5), " 1380") << "trimmed only by its own step";
        EXPECT_EQ(std::bit_cast<std::uint32_t>(static_cast<float>(Row(2).Footage)),
                  std::bit_cast<std::uint32_t>(row.distances[1]));
    }
}

TEST_F(CenterPivotCalculation, KeepsANaNDistanceBitForBit) {
    FillTest();
    Test().Gauges[1].Footage = std::bit_cast<float>(0x7fc01234U);
    CalculateWithOverflow();
    EXPECT_EQ(std::bit_cast<std::uint32_t>(static_cast<float>(Row(1).Footage)), 0x7fc01234U);
}

TEST_F(CenterPivotCalculation, TrimsTheLengthsAlsoWhenOneIsBlank) {
    FillTest();
    Test().DistanceToTower = "  1380 ";
    Test().LengthOverhang = "                  ";
    Test().EndGunRadius = " 30";
    CalculateCenterPivot();
    EXPECT_EQ(Test().DistanceToTower.Whole(), "1380                ");
    EXPECT_EQ(Test().EndGunRadius.Whole(), "30                  ");
    EXPECT_EQ(Results().IrrigatedAcres, 0.0F);
}

TEST_F(CenterPivotCalculation, LeavesFieldsItOnlyReadsAsTheyStand) {
    FillTest();
    for (NumberField field :
         {&CenterPivotTest::GuageDiameter, &CenterPivotTest::PercentTimer, &CenterPivotTest::TravelSpeedFeet,
          &CenterPivotTest::TravelSpeedMinutes, &CenterPivotTest::TravelSpeedSeconds}) {
        Test().*field = " 10";
    }
    CalculateCenterPivot();
    EXPECT_GT(Results().CalculatedFlowRate, 0.0F);
    for (NumberField field :
         {&CenterPivotTest::GuageDiameter, &CenterPivotTest::PercentTimer, &CenterPivotTest::TravelSpeedFeet,
          &CenterPivotTest::TravelSpeedMinutes, &CenterPivotTest::TravelSpeedSeconds}) {
        EXPECT_EQ((Test().*field).Whole().substr(0, 3), " 10");
    }
}

TEST_F(CenterPivotCalculation, KeepsAnEarlierTestsAcresWhenALengthIsBlank) {
    constexpr std::array kLengths = {&CenterPivotTest::DistanceToTower, &CenterPivotTest::LengthOverhang,
                                     &CenterPivotTest::EndGunRadius};
    for (NumberField length : kLengths) {
        FillTest();
        CalculateCenterPivot();
        const float flow = Results().CalculatedFlowRate;
        ASSERT_EQ(Results().IrrigatedAcres, 151.634491F);
        Test().*length = "";
        // A blank length is the only one that is looked at.
        Test().EndGunRadius = length == &CenterPivotTest::EndGunRadius ? "" : "abc";
        CalculateCenterPivot();
        EXPECT_EQ(Results().IrrigatedAcres, 151.634491F);
        EXPECT_EQ(Results().CalculatedFlowRate, length == kLengths[0] ? 0.0F : flow) << "uses the kept acres";
        ResetCenterPivot();
        CalculateCenterPivot();
        EXPECT_EQ(Results().IrrigatedAcres, 0.0F);
    }
}

TEST_F(CenterPivotCalculation, AFaultyLengthEndsItBeforeTheFlowRate) {
    for (NumberField length : {&CenterPivotTest::DistanceToTower, &CenterPivotTest::LengthOverhang,
                               &CenterPivotTest::EndGunRadius}) {
        FillTest();
        Test().*length = "1.2.3";
        LeaveEarlierResults();
        CalculateWithTypeMismatch();
        ExpectComputed(5);
    }
    FillTest();
    Test().DistanceToTower = "3e38";
    Test().LengthOverhang = "3e38";
    LeaveEarlierResults();
    CalculateWithOverflow();
    ExpectComputed(5);
}

TEST_F(CenterPivotCalculation, SumsTheLengthsAsSinglesInTheirOrder) {
    FillTest();
    Test().DistanceToTower = "16777216";
    Test().LengthOverhang = "1";
    Test().EndGunRadius = "1";
    CalculateCenterPivot();
    EXPECT_EQ(Results().IrrigatedAcres, 20300269568.0F);
    Test().DistanceToTower = "1";
    Test().EndGunRadius = "16777216";
    CalculateCenterPivot();
    EXPECT_EQ(Results().IrrigatedAcres, 20300273664.0F);
}

TEST_F(CenterPivotCalculation, ReadsEntriesByTheLocaleAndPlainNumbersAlways) {
    FillTest();
    CalculateCenterPivot();
    const float depth = Results().AverageDepth;
    UseNumberLocale(testing::GermanNumbers());
    Test().GuageDiameter = "10,0";
    Test().DistanceToTower = "1.380";
    Test().LengthOverhang = "40.0";
    CalculateCenterPivot();
    EXPECT_EQ(Results().AverageDepth, depth);
    EXPECT_NEAR(Results().IrrigatedAcres, 0.36746, 0.00001) << "1.380 is a plain number";
    Test().DistanceToTower = "1.380,0";
    CalculateCenterPivot();
    EXPECT_EQ(Results().IrrigatedAcres, 151.634491F);
}

TEST_F(CenterPivotCalculation, ADiameterThatIsNoNumberEndsItAtTheFirstCup) {
    FillTest();
    ResetCenterPivot();
    Test().GuageDiameter = "wide";
    CalculateWithTypeMismatch();
    EXPECT_EQ(Row(1).Sequence, Test().Gauges[1].Sequence);
    EXPECT_EQ(Row(1).Footage, Test().Gauges[1].Footage);
    EXPECT_EQ(Row(1).Depth, 0.0F);
    EXPECT_EQ(Row(2).Footage, 0.0F);
}

TEST_F(CenterPivotCalculation, ResetsToProgramStart) {
    FillTest();
    CalculateCenterPivot();
    ResetCenterPivot();
    EXPECT_EQ(Results().ReportTitle.Whole(), std::string(80, ' '));
    EXPECT_EQ(Results().CupCount, 0);
    for (float CenterPivotResults::*result : kSingles) {
        EXPECT_EQ(Results().*result, 0.0F);
    }
    for (int row = 0; row <= 300; ++row) {
        EXPECT_EQ(Row(row).Sequence + Row(row).Footage + Row(row).Depth, 0.0F);
    }
}

TEST(CenterPivotFormulas, AcresAreTheAreaOfACircle) {
    EXPECT_EQ(AcresFromRadius(0), 0.0F);
    EXPECT_EQ(AcresFromRadius(1000), 72.12104F);
    EXPECT_EQ(AcresFromRadius(117.75F), 0.99996275F);
    EXPECT_EQ(AcresFromRadius(-1000), 72.12104F);
    ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = AcresFromRadius(3e38F); });
}

TEST(CenterPivotFormulas, AFlowPutsADepthOnAnAreaInATime) {
    EXPECT_EQ(FlowRateFromDepth(1, 1, 1), 453.0F);
    EXPECT_EQ(FlowRateFromDepth(100, 0.5F, 4), 5662.5F);
    EXPECT_EQ(FlowRateFromDepth(0, 1, 1), 0.0F);
    ExpectRunTimeError(ErrorNumber::DivisionByZero, [] { std::ignore = FlowRateFromDepth(1, 1, 0); });
    ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = FlowRateFromDepth(0, 1, 0); });
    ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = FlowRateFromDepth(3e38F, 3e38F, 1); });
}

} // namespace
} // namespace orvel
