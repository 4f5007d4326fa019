// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Records.h"

#include <array>
#include <cstdint>
#include <gmpxx.h>
#include <optional>
#include <string_view>

// A second evaluation of a center-pivot test, in exact rational arithmetic, that shares nothing with the
// program's but the record. A number is rounded, exactly and once, where it becomes a Single or a double;
// running sums and temporaries are never rounded. Everything must be finite.
namespace orvel::testing {

// A run-time error of the evaluation: 6 Overflow, 9 Subscript out of range, 11 Division by zero,
// 13 Type mismatch.
struct ExactError {
    int number;
};

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

// To the nearest value of the type, ties to even; 0 below half of the smallest subnormal. Throws
// ExactError 6.
[[nodiscard]] float RoundToSingle(const mpq_class& value);
[[nodiscard]] double RoundToDouble(const mpq_class& value);

// A decimal number with an optional sign, "." and exponent, blanks around it. Throws ExactError 13.
[[nodiscard]] mpq_class ReadDecimal(std::string_view text);

// The calculation, and what it leaves when `before` is what the one before left.
[[nodiscard]] ExactResults EvaluateExactly(const CenterPivotTest& test, const ExactResults& before = {});

// The application rate at the last tower; nothing when an entry is missing. Throws ExactError.
[[nodiscard]] std::optional<float> ExactApplicationRate(const CenterPivotTest& test);

} // namespace orvel::testing
