// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

// Arithmetic whose faults are errors. Formulas are written in `long double` (80-bit extended precision), so
// that their temporaries and running sums carry more than a result can show; a result is stored through one
// of the functions below exactly where a Single, a double or an integer is to receive it.
namespace orvel {

// The value rounded to single precision, ties to even; 0 when it is too small for a subnormal.
// Raises Overflow when it is not finite or too large.
[[nodiscard]] float StoreSingle(long double value);
// The same in double precision.
[[nodiscard]] double StoreDouble(long double value);

// The sum of two Singles where it is to be a Single itself. Raises Overflow.
[[nodiscard]] float AddSingles(float left, float right);

// The quotient. Raises Overflow for 0 / 0 and for an operand that is not finite, Division by zero for x / 0.
[[nodiscard]] long double Divide(long double dividend, long double divisor);

// The nearest integer, ties to even. Raises Overflow outside the type.
[[nodiscard]] std::int16_t RoundToInteger(long double value);
[[nodiscard]] std::int32_t RoundToLong(long double value);

// Half of the number, ties to even: of 3 it is 2, of 5 it is 2.
[[nodiscard]] constexpr std::size_t HalfRoundedToEven(std::size_t number) {
    const std::size_t half = number / 2;
    const bool isTie = number % 2 == 1;
    return isTie && half % 2 == 1 ? half + 1 : half;
}

} // namespace orvel
