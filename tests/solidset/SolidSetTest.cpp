// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "solidset/SolidSet.h"

#include "tests/solidset/SolidSetFixture.h"

#include <array>
#include <gtest/gtest.h>
#include <vector>

namespace orvel {

namespace {

using testing::kHundredCc;

class SolidSetCalculation : public testing::SolidCalculationTest {};

TEST_F(SolidSetCalculation, FillsEveryResult) {
    FillTest();
    LeaveEarlierResults();
    CalculateSolidSet();
    ExpectComputed(5);
    EXPECT_EQ(Results().SolidSetCupCount, 12);
    // 1200 cc in twelve cups of 10 cm, 120 cc at most, 100 cc off the average together.
    EXPECT_EQ(Results().SolidSetAverageDepth, kHundredCc);
    EXPECT_EQ(Results().SolidSetMaximumDepth, 0.6015305F);
    EXPECT_FLOAT_EQ(Results().SolidSetCU, 1100.0F / 12.0F);
    // The three lowest of twelve are 80, 85 and 90 cc.
    EXPECT_FLOAT_EQ(Results().SolidSetDU, 85.0F);
    EXPECT_EQ(Results().SolidSetApplicationRate, kHundredCc);
    EXPECT_EQ(SolidSetCountedDepths().size(), 12U);
    EXPECT_EQ(SolidSetCountedDepths().front(), Depth(1));
    EXPECT_EQ(SolidSetCountedDepths().back(), Depth(12));
    EXPECT_EQ(Program().messageText, "");
}

TEST_F(SolidSetCalculation, DepthsOneToFourAreUniformBySixtyAndForty) {
    Test().GuageDiameter = "1";
    // Cubic centimetres that stand one to four inches high in a cup of one centimetre.
    SetVolumes({7.97964525F, 1.99491131F, 5.98473406F, 3.98982263F});
    CalculateSolidSet();
    EXPECT_FLOAT_EQ(Depth(1), 4.0F);
    EXPECT_FLOAT_EQ(Depth(2), 1.0F);
    EXPECT_FLOAT_EQ(Results().SolidSetAverageDepth, 2.5F);
    EXPECT_FLOAT_EQ(Results().SolidSetMaximumDepth, 4.0F);
    EXPECT_FLOAT_EQ(Results().SolidSetCU, 60.0F);
    EXPECT_FLOAT_EQ(Results().SolidSetDU, 40.0F);
}

TEST_F(SolidSetCalculation, EqualDepthsAreExactlyUniform) {
    for (const char* diameter : testing::kOddDiameters) {
        Test().GuageDiameter = diameter;
        for (const testing::EqualCups& row : testing::kEqualCups) {
            SetEqualVolumes(row.cups);
            CalculateSolidSet();
            EXPECT_EQ(Results().SolidSetCU, 100.0F) << row.cups;
            EXPECT_EQ(Results().SolidSetDU, row.lowQuarter) << row.cups;
            EXPECT_EQ(Results().SolidSetAverageDepth, Results().SolidSetMaximumDepth) << row.cups;
        }
    }
}

TEST_F(SolidSetCalculation, TakesTheLowQuarterFromTheUnroundedQuarter) {
    Test().GuageDiameter = "10";
    // The two lowest, 60 and 70, over 2.5, over the average of 100.
    SetVolumes({110, 60, 120, 100, 130, 70, 110, 100, 90, 110});
    CalculateSolidSet();
    EXPECT_FLOAT_EQ(Results().SolidSetDU, 52.0F);
    EXPECT_FLOAT_EQ(Depth(1), 0.55140298F) << "the depths themselves stay in their order";
    EXPECT_FLOAT_EQ(Depth(2), 0.30076525F);
}

TEST_F(SolidSetCalculation, TheLowQuarterGoesByTheStoredDepthsAndAverage) {
    FillTest();
    CalculateSolidSet();
    Results().SolidSetAverageDepth *= 2;
    SolidSetLowQuarter();
    EXPECT_FLOAT_EQ(Results().SolidSetDU, 42.5F);
}

TEST_F(SolidSetCalculation, CountsUpToTheFirstPairOfZeroVolumes) {
    Test().GuageDiameter = "10";
    for (const testing::CountedList& row : testing::kCountedLists) {
        SetVolumes(row.volumes);
        // The grid's own count is not what counts.
        Test().NumberX = "2";
        Test().NumberY = "2";
        CalculateSolidSet();
        EXPECT_EQ(Results().SolidSetCupCount, row.count);
        EXPECT_FLOAT_EQ(Results().SolidSetAverageDepth, row.average * kHundredCc / 100.0F) << row.count;
    }
}

TEST_F(SolidSetCalculation, SpreadsAVolumeOverTheCupsOpening) {
    for (const testing::SpreadVolume& row : testing::kSpreadVolumes) {
        Test().GuageDiameter = row.diameter;
        SetVolumes({row.volume});
        CalculateSolidSet();
        EXPECT_EQ(Depth(1), row.depth) << row.diameter << " cm, " << row.volume << " cc";
        EXPECT_EQ(Results().SolidSetMaximumDepth, row.depth);
    }
}

TEST_F(SolidSetCalculation, WithoutACupNobodyReadsTheDiameter) {
    Test().GuageDiameter = "wide";
    SetVolumes({});
    CalculateWith(6, "Overflow");
    SetVolumes({100});
    CalculateWith(13, "Type mismatch");
}

TEST_F(SolidSetCalculation, FindsTheLargestDepthWhereverItStands) {
    Test().GuageDiameter = "10";
    for (const std::vector<float>& volumes : {std::vector<float>{200, 1, 2}, {1, 200, 2}, {1, 2, 200}}) {
        SetVolumes(volumes);
        CalculateSolidSet();
        EXPECT_EQ(Results().SolidSetMaximumDepth, 1.0025508F);
    }
    SetVolumes({-300, -200});
    CalculateSolidSet();
    EXPECT_EQ(Results().SolidSetMaximumDepth, -1.0025508F) << "it starts from cup 1, not from 0";
}

TEST_F(SolidSetCalculation, KeepsTheDepthsBehindTheCountedCups) {
    Test().GuageDiameter = "10";
    SetVolumes({10, 20, 30, 40});
    CalculateSolidSet();
    SetVolumes({50, 60});
    CalculateSolidSet();
    EXPECT_FLOAT_EQ(Depth(2), 0.30076525F);
    EXPECT_FLOAT_EQ(Depth(3), 0.15038263F) << "the earlier test's";
    EXPECT_FLOAT_EQ(Depth(4), 0.20051017F);
    EXPECT_EQ(Depth(0), 0.0F);
    EXPECT_EQ(SolidSetCountedDepths().size(), 2U);
}

TEST_F(SolidSetCalculation, DividesTheAverageByTheHours) {
    struct Case {
        const char* duration;
        float hours;
    };
    constexpr std::array kCases = {
        Case{"60", 1}, Case{"30", 0.5F}, Case{"  45 ", 0.75F}, Case{"7.5", 0.125F}, Case{"-30", -0.5F},
    };
    for (const Case& row : kCases) {
        FillTest();
        Test().Duration = row.duration;
        CalculateSolidSet();
        EXPECT_FLOAT_EQ(Results().SolidSetApplicationRate, kHundredCc / row.hours) << row.duration;
    }
    // Half an inch in 30 minutes is an inch an hour.
    SetVolumes({99.7455673F, 99.7455673F, 99.7455673F});
    Test().Duration = "30";
    CalculateSolidSet();
    EXPECT_EQ(Results().SolidSetAverageDepth, 0.5F);
    EXPECT_EQ(Results().SolidSetApplicationRate, 1.0F);
}

TEST_F(SolidSetCalculation, WithoutADurationTheRateIsZero) {
    for (const char* blank : {"", "   "}) {
        FillTest();
        Test().Duration = blank;
        LeaveEarlierResults();
        CalculateSolidSet();
        ExpectComputed(5);
        EXPECT_EQ(Results().SolidSetApplicationRate, 0.0F);
    }
}

TEST_F(SolidSetCalculation, TrimsTheDurationAndNothingElse) {
    FillTest();
    Test().Duration = "  60";
    Test().GuageDiameter = "  10";
    CalculateSolidSet();
    EXPECT_EQ(Test().Duration.Whole(), "60                  ");
    EXPECT_EQ(Test().GuageDiameter.Whole(), "  10                ");
}

TEST_F(SolidSetCalculation, ReadsEntriesByTheLocaleAndPlainNumbersAlways) {
    FillTest();
    UseNumberLocale(testing::GermanNumbers());
    Test().GuageDiameter = "10,0";
    Test().Duration = "7,5";
    CalculateSolidSet();
    EXPECT_EQ(Results().SolidSetAverageDepth, kHundredCc);
    EXPECT_EQ(Results().SolidSetApplicationRate, kHundredCc * 8);
    Test().GuageDiameter = "10.0";
    Test().Duration = "7.5";
    CalculateSolidSet();
    EXPECT_EQ(Results().SolidSetAverageDepth, kHundredCc);
    EXPECT_EQ(Results().SolidSetApplicationRate, kHundredCc * 8);
}

TEST_F(SolidSetCalculation, ResetsToProgramStart) {
    FillTest();
    CalculateSolidSet();
    ResetSolidSet();
    EXPECT_EQ(Results().SolidSetCupCount, 0);
    for (float SolidSetResults::*result : kSingles) {
        EXPECT_EQ(Results().*result, 0.0F);
    }
    for (std::size_t cup = 0; cup <= 300; ++cup) {
        EXPECT_EQ(Depth(cup), 0.0F);
    }
    EXPECT_TRUE(SolidSetCountedDepths().empty());
}

} // namespace

} // namespace orvel
