// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/CatchCan.h"

#include "tests/support/LogicTest.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <numeric>
#include <vector>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

// The volumes, from entry 1 on.
template <class Gauge>
MeasurementList<Gauge> Measurements(const std::vector<float>& volumes) {
    MeasurementList<Gauge> gauges;
    int i = 0;
    for (const float volume : volumes) {
        gauges[++i].Volume = volume;
    }
    return gauges;
}

MeasurementList<PivotGauge> Readings(int count) {
    return Measurements<PivotGauge>(std::vector<float>(static_cast<std::size_t>(count), 1.0F));
}

// 1, 2, ... n.
std::vector<float> Ramp(std::size_t count) {
    std::vector<float> depths(count);
    std::iota(depths.begin(), depths.end(), 1.0F);
    return depths;
}

TEST(CatchCan, CountsUpToTheFirstPairOfZeroVolumes) {
    struct Case {
        std::vector<float> volumes;
        std::int16_t count;
    };

    const std::vector<Case> cases = {
        {{}, 0},
        {{0, 0}, 0},
        {{0, 0, 5, 6}, 0},
        {{5}, 1},
        {{0, 5}, 2},
        {{5, 0, 6, 0, 0}, 3},
        {{5, 0, 6, 0, 0, 7, 8}, 3},
        {{1, 0, 2, 0, 3, 0, 4}, 7},
        {{-1, 2}, 2},
        {{5, -0.0F, 0.0F, 6}, 1},
        {{5, kNaN, 0, 0}, 2},
        {{1e-45F, 0, 0}, 1},
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        EXPECT_EQ(CountCups(Measurements<PivotGauge>(cases[i].volumes)), cases[i].count) << "case " << i;
        EXPECT_EQ(CountCups(Measurements<SolidSetGauge>(cases[i].volumes)), cases[i].count) << "case " << i;
    }
}

TEST(CatchCan, CountsByTheVolumeAloneAndNeverLooksAtEntryZero) {
    auto gauges = Readings(2);
    gauges[0].Volume = 9.0F;
    gauges[3].Sequence = 3.0F;
    gauges[3].Footage = 90.0F;
    gauges[3].Spare = 1.0F;
    EXPECT_EQ(CountCups(gauges), 2);
}

TEST(CatchCan, CountsAtMost298Cups) {
    EXPECT_EQ(CountCups(Readings(297)), 297);
    EXPECT_EQ(CountCups(Readings(298)), 298);
}

TEST(CatchCan, RunsOutOfTheListWhenNoPairOfZerosEndsIt) {
    for (const int count : {299, 300}) {
        ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange, [&] { (void)CountCups(Readings(count)); });
    }
    // Zeros that stand alone, the last of them at entry 300.
    auto gauges = Readings(300);
    for (int i = 2; i <= 300; i += 2) {
        gauges[i].Volume = 0.0F;
    }
    ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange, [&] { (void)CountCups(gauges); });
    gauges[300].Volume = 1.0F;
    ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange, [&] { (void)CountCups(gauges); });
}

TEST(CatchCan, TurnsVolumesIntoDepths) {
    struct Case {
        float volume;
        float diameter;
        float depth;
    };

    // Calculated with exact fractions and rounded once.
    constexpr std::array<Case, 7> kCases = {{
        {100.0F, 10.0F, 0x1.00a72cp-1F},
        {112.5F, 10.16F, 0x1.17b656p-1F},
        {1.0F, 3.0F, 0x1.c845a2p-5F},
        {250.25F, 8.5F, 0x1.bc7afap+0F},
        {0.1F, 7.3F, 0x1.ed2caap-11F},
        {1e30F, 1.0F, 0x1.94ed54p+98F},
        {0.0F, 10.0F, 0.0F},
    }};
    for (const Case& one : kCases) {
        EXPECT_EQ(DepthFromVolume(one.volume, one.diameter), one.depth)
            << one.volume << " cc, " << one.diameter << " cm";
        EXPECT_EQ(DepthFromVolume(-one.volume, -one.diameter), -one.depth);
    }
    EXPECT_NEAR(DepthFromVolume(100.0F, 10.0F), 0.50128, 0.000005);
}

TEST(CatchCan, RaisesWhereADepthCannotBeFormed) {
    struct Case {
        float volume;
        float diameter;
        ErrorNumber number;
    };

    constexpr std::array<Case, 7> kCases = {{
        {100.0F, 0.0F, ErrorNumber::DivisionByZero},
        {-1.0F, -0.0F, ErrorNumber::DivisionByZero},
        {0.0F, 0.0F, ErrorNumber::Overflow},
        {kNaN, 10.0F, ErrorNumber::Overflow},
        {kInfinity, 10.0F, ErrorNumber::Overflow},
        {-kInfinity, 0.0F, ErrorNumber::Overflow},
        {3e38F, 0.001F, ErrorNumber::Overflow},
    }};
    for (const Case& one : kCases) {
        SCOPED_TRACE(::testing::Message() << one.volume << " cc, " << one.diameter << " cm");
        ExpectRunTimeError(one.number, [&] { (void)DepthFromVolume(one.volume, one.diameter); });
    }
}

TEST(CatchCan, TotalsTheDepthsAndFindsTheLargest) {
    const std::vector<float> depths = {0.5F, 2.25F, 1.0F};
    const DepthTotals totals = TotalDepths(depths, 0.5F);
    EXPECT_EQ(totals.maximum, 2.25F);
    EXPECT_EQ(totals.sum, 3.75L);
}

TEST(CatchCan, StartsTheMaximumAtWhatRowOneHolds) {
    const DepthTotals none = TotalDepths({}, 7.5F);
    EXPECT_EQ(none.maximum, 7.5F);
    EXPECT_EQ(none.sum, 0.0L);
    const std::vector<float> negative = {-2.0F, -3.0F};
    EXPECT_EQ(TotalDepths(negative, -2.0F).maximum, -2.0F);
    EXPECT_EQ(TotalDepths(negative, 4.0F).maximum, 4.0F);
    EXPECT_EQ(TotalDepths(negative, 4.0F).sum, -5.0L);
}

TEST(CatchCan, SumsDepthsInExtendedPrecision) {
    // A double would lose the 1.
    EXPECT_EQ(TotalDepths(std::vector<float>{0x1p53F, 1.0F}, 0.0F).sum, 0x1p53L + 1.0L);
    // The deviations' sum too: (1 - (2^53 + 1) / 2^53) x 100 would be 0.
    EXPECT_EQ(ChristiansenUniformity(std::vector<float>{0x1p53F, 1.0F}, 0.0F, 0x1p53L), -100 * 0x1p-53F);
}

TEST(CatchCan, FindsTheChristiansenUniformity) {
    EXPECT_EQ(ChristiansenUniformity(Ramp(4), 2.5F, 10.0L), 60.0F);
    EXPECT_EQ(ChristiansenUniformity(std::vector<float>(10, 0.1F), 0.1F, 10.0L * 0.1F), 100.0F);
    // More deviation than water: -100 %.
    EXPECT_EQ(ChristiansenUniformity(std::vector<float>{4.0F, 0.0F, 0.0F, 0.0F}, 1.0F, 3.0L), -100.0F);
}

TEST(CatchCan, HasNoUniformityWithoutWater) {
    ExpectRunTimeError(ErrorNumber::Overflow, [] { (void)ChristiansenUniformity({}, 0.0F, 0.0L); });
    ExpectRunTimeError(ErrorNumber::Overflow, [] {
        (void)ChristiansenUniformity(std::vector<float>{0.0F, 0.0F, 0.0F}, 0.0F, 0.0L);
    });
    ExpectRunTimeError(ErrorNumber::DivisionByZero, [] {
        (void)ChristiansenUniformity(std::vector<float>{1.0F, -1.0F}, 0.0F, 0.0L);
    });
}

TEST(CatchCan, RoundsTheLowQuarterToEvenAndDividesByTheUnroundedOne) {
    struct Case {
        std::size_t count; // depths 1, 2, ... count
        double uniformity;
    };

    constexpr std::array<Case, 9> kCases = {{
        {1, 0.0},         // none
        {2, 0.0},         // 0.5 gives none
        {3, 200.0 / 3},   // 0.75 gives one: 1 / 0.75 / 2
        {4, 40.0},        // one: 1 / 1 / 2.5
        {5, 80.0 / 3},    // 1.25 gives one: 1 / 1.25 / 3
        {6, 400.0 / 7},   // 1.5 gives two: 3 / 1.5 / 3.5
        {7, 300.0 / 7},   // 1.75 gives two: 3 / 1.75 / 4
        {10, 240.0 / 11}, // 2.5 gives two: 3 / 2.5 / 5.5
        {14, 800.0 / 21}, // 3.5 gives four: 10 / 3.5 / 7.5
    }};
    for (const Case& one : kCases) {
        const std::vector<float> depths = Ramp(one.count);
        const float average = static_cast<float>(one.count + 1) / 2.0F;
        EXPECT_EQ(LowQuarterUniformity(depths, average), static_cast<float>(one.uniformity)) << one.count;
    }
}

TEST(CatchCan, GivesEqualDepthsAHundredOnlyWhenTheirCountHasAQuarter) {
    for (const float depth : {0.1F, 0x1.00a72cp-1F, 3.0F}) {
        EXPECT_EQ(LowQuarterUniformity(std::vector<float>(4, depth), depth), 100.0F);
        EXPECT_EQ(LowQuarterUniformity(std::vector<float>(100, depth), depth), 100.0F);
        EXPECT_EQ(LowQuarterUniformity(std::vector<float>(10, depth), depth), 80.0F);
        EXPECT_EQ(LowQuarterUniformity(std::vector<float>(1, depth), depth), 0.0F);
    }
}

TEST(CatchCan, FindsTheLowestDepthsWhereverTheyStand) {
    const std::vector<float> depths = {9, 2, 13, 7, 4, 14, 1, 11, 3, 12, 6, 10, 5, 8};
    EXPECT_EQ(LowQuarterUniformity(depths, 7.5F), static_cast<float>(800.0 / 21));
    EXPECT_EQ(depths.front(), 9.0F) << "the depths themselves stay in their order";
    std::vector<float> falling = Ramp(298);
    std::reverse(falling.begin(), falling.end());
    // 74.5 gives 74: 2775 / 74.5 / 149.5
    EXPECT_EQ(LowQuarterUniformity(falling, 149.5F), static_cast<float>(277500.0 / (74.5 * 149.5)));
}

TEST(CatchCan, HasNoLowQuarterWithoutWater) {
    ExpectRunTimeError(ErrorNumber::Overflow, [] { (void)LowQuarterUniformity({}, 0.0F); });
    ExpectRunTimeError(ErrorNumber::Overflow,
                       [] { (void)LowQuarterUniformity(std::vector<float>(8, 0.0F), 0.0F); });
    ExpectRunTimeError(ErrorNumber::DivisionByZero,
                       [] { (void)LowQuarterUniformity(std::vector<float>(8, 1.0F), 0.0F); });
}

} // namespace
} // namespace orvel
