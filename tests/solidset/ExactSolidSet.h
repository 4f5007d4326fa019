// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Records.h"
#include "tests/support/ExactArithmetic.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

// A second evaluation of a solid-set test, in exact rational arithmetic.
namespace orvel::testing {

struct ExactSolidSetResults {
    std::array<float, 301> depths{};
    std::int16_t cupCount = 0;
    float maximumDepth = 0;
    float averageDepth = 0;
    float cu = 0;
    float du = 0;
    float applicationRate = 0;
    // The record's entry as the calculation leaves it, padding included.
    std::string duration;
    // The error that ended the calculation; the results it did not reach are those of before.
    std::optional<int> error;
};

// The calculation, and what it leaves when `before` is what the one before left.
[[nodiscard]] ExactSolidSetResults EvaluateExactly(const SolidSetTest& test,
                                                   const ExactSolidSetResults& before = {});

} // namespace orvel::testing
