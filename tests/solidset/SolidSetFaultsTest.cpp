// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/solidset/SolidSetFixture.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>

namespace orvel {

namespace {

using testing::kEarlier;
using testing::kHundredCc;

constexpr float kInfinity = std::numeric_limits<float>::infinity();

// Run-time errors that end the calculation of a solid-set test.
class SolidSetFaults : public testing::SolidCalculationTest {};

TEST_F(SolidSetFaults, AFaultyDurationEndsItBehindTheLowQuarter) {
    struct Case {
        const char* duration;
        int number;
        const char* description;
    };
    constexpr std::array kCases = {
        Case{"  abc", 13, "Type mismatch"},   Case{"1.2.3", 13, "Type mismatch"},
        Case{"1 hour", 13, "Type mismatch"},  Case{"0", 11, "Division by zero"},
        Case{"-0.0", 11, "Division by zero"}, Case{"1e400", 6, "Overflow"},
        Case{"1e-300", 6, "Overflow"},
    };
    for (const Case& row : kCases) {
        SCOPED_TRACE(row.duration);
        FillTest();
        Test().Duration = row.duration;
        LeaveEarlierResults();
        CalculateWith(row.number, row.description);
        ExpectComputed(4);
        EXPECT_FLOAT_EQ(Results().SolidSetDU, 85.0F);
        EXPECT_FALSE(Test().Duration.Whole().starts_with(' ')) << "trimmed before it is read";
    }
}

TEST_F(SolidSetFaults, StopsAtACupThatHasNoDepth) {
    for (const testing::ImpossibleDepth& row : testing::kImpossibleDepths) {
        SCOPED_TRACE(row.diameter);
        FillTest();
        SetVolumes({row.volume, 6});
        Test().GuageDiameter = row.diameter;
        Test().Duration = " 60";
        LeaveEarlierResults();
        CalculateWith(row.number, row.description);
        EXPECT_EQ(Results().SolidSetCupCount, 2);
        EXPECT_EQ(Depth(1), kEarlier);
        EXPECT_EQ(Depth(2), kEarlier);
        ExpectComputed(0);
        EXPECT_EQ(Test().Duration.Whole().substr(0, 3), " 60") << "trimmed only by its own step";
    }
}

TEST_F(SolidSetFaults, KeepsTheDepthsBeforeTheCupThatHasNone) {
    FillTest();
    SetVolumes({100, kInfinity, 100});
    LeaveEarlierResults();
    CalculateWith(6, "Overflow");
    EXPECT_EQ(Results().SolidSetCupCount, 3);
    EXPECT_EQ(Depth(1), kHundredCc);
    EXPECT_EQ(Depth(2), kEarlier);
    EXPECT_EQ(Depth(3), kEarlier);
    ExpectComputed(0);
}

TEST_F(SolidSetFaults, WithoutCupsDividesZeroByZero) {
    FillTest();
    SetVolumes({0, 0, 5, 6});
    Test().GuageDiameter = "no cup reads this";
    LeaveEarlierResults();
    Results().SolidSetDepths[1] = 3.5F;
    CalculateWith(6, "Overflow");
    EXPECT_EQ(Results().SolidSetCupCount, 0);
    EXPECT_EQ(Results().SolidSetMaximumDepth, 3.5F) << "whatever entry 1 holds";
    ExpectComputed(1);
    EXPECT_TRUE(SolidSetCountedDepths().empty());
}

TEST_F(SolidSetFaults, VolumesThatCancelOutEndItBehindTheAverage) {
    FillTest();
    SetVolumes({5, -5});
    LeaveEarlierResults();
    CalculateWith(11, "Division by zero");
    EXPECT_EQ(Results().SolidSetAverageDepth, 0.0F);
    ExpectComputed(2);
}

TEST_F(SolidSetFaults, AnAverageTooSmallToStoreEndsItBehindTheCoefficient) {
    FillTest();
    // Two of the three cups cancel out, and a third of the smallest Single is nothing.
    Test().GuageDiameter = "1e20";
    SetVolumes({25, -25, 2.8e-5F});
    LeaveEarlierResults();
    CalculateWith(11, "Division by zero");
    EXPECT_EQ(Depth(3), std::numeric_limits<float>::denorm_min());
    EXPECT_EQ(Results().SolidSetAverageDepth, 0.0F);
    EXPECT_LT(Results().SolidSetCU, -1000.0F);
    ExpectComputed(3);
}

TEST_F(SolidSetFaults, ReachesEntry301With299And300Readings) {
    FillTest();
    for (const int readings : {299, 300}) {
        SCOPED_TRACE(readings);
        SetEqualVolumes(readings);
        LeaveEarlierResults();
        CalculateWith(9, "Subscript out of range");
        EXPECT_EQ(Results().SolidSetCupCount, 7) << "the earlier test's";
        EXPECT_EQ(Depth(1), kEarlier);
        ExpectComputed(0);
    }
    SetEqualVolumes(298);
    Test().Gauges[300].Volume = 5;
    CalculateWith(9, "Subscript out of range");
}

TEST_F(SolidSetFaults, KeepsTheMessageAndTheErrorThatItShowed) {
    FillTest();
    Test().Duration = "abc";
    CalculateWith(13, "Type mismatch");
    EXPECT_EQ(Program().messageText, "Sorry, an error occurred generating report...\r"
                                     "Error Number: 13\r"
                                     "Error Description: Type mismatch\r"
                                     "Error Source: ORVEL\r");
    EXPECT_EQ(Program().messageReply, Reply::Ok);
    ASSERT_TRUE(Program().shownError.has_value());
    EXPECT_EQ(Program().shownError->Number(), 13);
}

} // namespace

} // namespace orvel
