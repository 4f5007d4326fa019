// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/ColorRuns.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

TEST(ColorRuns, BeginEmptyAndCountFromOne) {
    ColorRunTable table;
    EXPECT_EQ(table.ColorRunCount, 0);
    table.Record(5, 4, kBlue);
    table.Record(70, 1, kGreen);
    EXPECT_EQ(table.ColorRunCount, 2);
    EXPECT_EQ(table.ColorRunStart[1], 5);
    EXPECT_EQ(table.ColorRunLength[1], 4);
    EXPECT_EQ(table.ColorRunCode[1], 2);
    EXPECT_EQ(table.ColorRunStart[2], 70);
    EXPECT_EQ(table.ColorRunCode[2], 3);
    EXPECT_EQ(table.ColorRunCode[0], 0);
    EXPECT_EQ(table.ColorRunStart[0], 0);
}

TEST(ColorRuns, NoColourIsNotEntered) {
    ColorRunTable table;
    table.Record(5, 4, kNoColor);
    EXPECT_EQ(table.ColorRunCount, 0);
    EXPECT_EQ(table.ColorRunStart[1], 0);
}

TEST(ColorRuns, NothingIsEnteredPastThreeHundred) {
    ColorRunTable table;
    for (std::size_t i = 1; i <= 302; ++i) {
        table.Record(i, 1, kRed);
    }
    EXPECT_EQ(table.ColorRunCount, 300);
    EXPECT_EQ(table.ColorRunStart[300], 300);
}

TEST(ColorRuns, APositionBeyondSixteenBitsStaysUncoloured) {
    ColorRunTable table;
    table.Record(32767, 1, kRed);
    table.Record(32768, 1, kRed);
    table.Record(65540, 1, kRed);
    EXPECT_EQ(table.ColorRunCount, 1);
    EXPECT_EQ(table.ColorRunStart[1], 32767);
}

struct Deviation {
    float depth;
    float average;
    ColorCode color;
};

TEST(ColorRuns, ACupIsMarkedBeyondTwentyPercentOfTheAverage) {
    constexpr std::array<Deviation, 18> kCases = {{
        {0.5F, 0.5F, kNoColor},
        {0.6F, 0.5F, kNoColor}, // 20 %, which no Single holds exactly
        {0.4F, 0.5F, kNoColor},
        {12.0F, 10.0F, kNoColor},
        {8.0F, 10.0F, kNoColor},
        {12.0004F, 10.0F, kNoColor}, // 0.20004 is 0.2000 to four decimals
        {12.0006F, 10.0F, kBlue},    // 0.20006 is 0.2001
        {7.9996F, 10.0F, kNoColor},
        {7.9994F, 10.0F, kRed},
        {24001.0F, 20000.0F, kBlue}, // 0.20005, a half at the fourth decimal
        {15999.0F, 20000.0F, kRed},
        {0.0F, 0.5F, kRed},
        {-1.0F, 0.5F, kRed},
        {1.0F, 0.5F, kBlue},
        {3.0e38F, 1.0e-30F, kBlue},
        {0.0F, 0.0F, kNoColor},
        {1.0F, 0.0F, kNoColor},
        {1.0F, -0.5F, kNoColor},
    }};
    for (const Deviation& each : kCases) {
        EXPECT_EQ(DeviationColor(each.depth, each.average), each.color)
            << each.depth << " of an average of " << each.average;
    }
}

} // namespace

} // namespace orvel
