// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace orvel {

enum ColorCode : std::int16_t {
    kNoColor = 0,
    kRed = 1,   // too little water
    kBlue = 2,  // too much
    kGreen = 3, // the tested setting
};

// The stretches of the report's text that are to be coloured: entries 1 to 300, entry 0 is never used. An
// unused entry is all zero.
struct ColorRunTable {
    static constexpr std::int16_t kLast = 300;

    std::array<std::int16_t, kLast + 1> ColorRunStart{}; // characters before it, a CR LF as two
    std::array<std::int16_t, kLast + 1> ColorRunLength{};
    std::array<std::int16_t, kLast + 1> ColorRunCode{};
    std::int16_t ColorRunCount = 0;

    // Enters the next run. One of no colour is not entered; nor is one that the table can't hold, because it
    // is full or the position is beyond its 16 bits: it stays uncoloured.
    void Record(std::size_t start, std::size_t length, ColorCode code);
};

// The colour of a cup: its depth differs from the average by more than 20 % of it (to four decimals, so that
// an exact 20 % is no mark). Nothing differs from an average of 0 or less.
[[nodiscard]] ColorCode DeviationColor(float depth, float average);

} // namespace orvel
