// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Records.h"
#include "tests/support/ExactArithmetic.h"

#include <array>
#include <cstdint>
#include <optional>

// A second evaluation of a center-pivot test, in exact rational arithmetic.
namespace orvel::testing {

struct ExactRow {
    float sequence = 0;
    float footage = 0;
    float depth = 0;
};

struct ExactResults {
    std::array<ExactRow, 301> rows;
    std::int16_t cupCount = 0;
    float maximumDepth = 0;
    float averageDepth = 0;
    float christiansenCU = 0;
    float heermannHeinCU = 0;
    float lowQuarterDU = 0;
    float irrigatedAcres = 0;
    float calculatedFlowRate = 0;
    float applicationEfficiency = 0;
    // The error that ended the calculation; the results it did not reach are those of before.
    std::optional<int> error;
};

// The calculation, and what it leaves when `before` is what the one before left.
[[nodiscard]] ExactResults EvaluateExactly(const CenterPivotTest& test, const ExactResults& before = {});

// The application rate at the last tower; nothing when an entry is missing. Throws ExactError.
[[nodiscard]] std::optional<float> ExactApplicationRate(const CenterPivotTest& test);

} // namespace orvel::testing
