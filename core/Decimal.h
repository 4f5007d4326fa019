// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace orvel {

// A decimal number written out: the value is 0.d1d2d3... times ten to the power of `point`, with the sign.
// `digits` has no leading and no trailing zeros; no digits at all is zero.
struct Decimal {
    bool isNegative = false;
    std::string digits;
    long point = 0;

    [[nodiscard]] bool IsZero() const { return digits.empty(); }

    // The digit that stands for ten to the power of `power`; '0' outside the digits.
    [[nodiscard]] char DigitAt(long power) const {
        const long index = point - 1 - power;
        return index >= 0 && index < static_cast<long>(digits.size())
                   ? digits[static_cast<std::size_t>(index)]
                   : '0';
    }
    // Drops leading and trailing zeros of `digits`.
    void Normalise();
};

// The shortest digits that read back as the same Single. Raises Overflow when the value is not finite.
[[nodiscard]] Decimal ShortestDecimal(float value);

// The value at 7 significant digits (a Single) or 15 (a double). Raises Overflow when it is not finite.
[[nodiscard]] Decimal SignificantDecimal(float value);
[[nodiscard]] Decimal SignificantDecimal(double value);

// Rounded to `decimals` digits behind the decimal point, halves away from zero. Zero has no sign.
[[nodiscard]] Decimal RoundedHalfAway(Decimal number, long decimals);

} // namespace orvel
