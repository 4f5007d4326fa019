// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

// What the calculations of both kinds of test must make of the same cups.
namespace orvel::testing {

// The depth, in inches, of 100 cc in a cup of 10 cm.
inline constexpr float kHundredCc = 0.50127542F;

struct SpreadVolume {
    const char* diameter; // cm
    float volume;         // cc
    float depth;          // inches
};

inline constexpr std::array kSpreadVolumes = {
    SpreadVolume{"10", 100, kHundredCc},  SpreadVolume{" 10.0 ", 200, 1.0025508F},
    SpreadVolume{"-10", 100, kHundredCc}, SpreadVolume{"20", 100, 0.12531886F},
    SpreadVolume{"5", 100, 2.0051017F},   SpreadVolume{"10", -100, -kHundredCc},
};

// A first cup that has no depth, and the run-time error that says so.
struct ImpossibleDepth {
    const char* diameter;
    float volume;
    int number;
    const char* description;
};

inline constexpr std::array kImpossibleDepths = {
    ImpossibleDepth{"", 5, 13, "Type mismatch"},
    ImpossibleDepth{"abc", 5, 13, "Type mismatch"},
    ImpossibleDepth{"0", 5, 11, "Division by zero"},
    ImpossibleDepth{"0.0", 0, 6, "Overflow"},
    ImpossibleDepth{"10", std::numeric_limits<float>::quiet_NaN(), 6, "Overflow"},
    ImpossibleDepth{"10", std::numeric_limits<float>::infinity(), 6, "Overflow"},
    ImpossibleDepth{"0.00001", 1e38F, 6, "Overflow"},
    ImpossibleDepth{"1e39", 5, 6, "Overflow"},
};

// A measurement list, the cups before its first pair of zeros, and the average of their volumes.
struct CountedList {
    std::vector<float> volumes;
    std::int16_t count;
    float average;
};

inline const std::array kCountedLists = {
    CountedList{{5, 0, 6, 0, 0}, 3, 11.0F / 3.0F},
    CountedList{{5}, 1, 5},
    CountedList{{0, 8}, 2, 4},
    CountedList{{5, 7, 0, 0, 9, 9}, 2, 6},
    CountedList{{4, 0, 4, 0, 4, 0, 4}, 7, 16.0F / 7.0F},
    CountedList{std::vector<float>(298, 3.0F), 298, 3},
};

// So many equal cups, and the uniformity of their low quarter: the nearest whole number of quarters over the
// quarter itself.
struct EqualCups {
    int cups;
    float lowQuarter;
};

inline constexpr std::array kEqualCups = {
    EqualCups{1, 0},          EqualCups{2, 0},          EqualCups{3, 400.0F / 3.0F}, EqualCups{4, 100},
    EqualCups{5, 80},         EqualCups{6, 800.0F / 6}, EqualCups{7, 800.0F / 7},    EqualCups{8, 100},
    EqualCups{9, 800.0F / 9}, EqualCups{10, 80},        EqualCups{14, 1600.0F / 14}, EqualCups{100, 100},
    EqualCups{296, 100},
};

// Whose depths no Single holds exactly.
inline constexpr std::array kOddDiameters = {"10", "11.195", "7.3"};

// What an earlier calculation left, told apart from anything the tests compute.
inline constexpr float kEarlier = -77.0F;

template <class Results, std::size_t N>
void LeaveEarlier(Results& results, const std::array<float Results::*, N>& singles) {
    for (float Results::*single : singles) {
        results.*single = kEarlier;
    }
}

// The first `count` of the results, in the order of their steps, are new; the others are the earlier ones.
template <class Results, std::size_t N>
void ExpectNew(const Results& results, const std::array<float Results::*, N>& singles, std::size_t count) {
    for (std::size_t i = 0; i < N; ++i) {
        EXPECT_EQ(results.*singles.at(i) != kEarlier, i < count) << "result " << i;
    }
}

} // namespace orvel::testing
