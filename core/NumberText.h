// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/NumberLocale.h"

#include <cstdint>
#include <string>
#include <string_view>

// Text to number and back.
//
// Blanks (0x20 only) around a number are ignored. Then a text is read by the first grammar that fits:
//
//     plain   = [sign] digits-with-at-most-one-"." [exponent]        the same in every locale
//     local   = [sign] integer [decimal-separator digits] [exponent]  by the current NumberLocale, where
//               integer has no group separators or all of them in their places
//     sign    = "+" | "-"        exponent = ("e" | "E") [sign] digits
//
// Both need at least one digit before the exponent; ".5" and "5." are numbers. There is no hexadecimal, no
// "inf" and no "nan". What fits neither raises Type mismatch, the empty text included; a value outside the
// type raises Overflow. The value is rounded once, from the decimal text to the type, ties to even.
namespace orvel {

[[nodiscard]] float ToSingle(std::string_view text);
[[nodiscard]] double ToDouble(std::string_view text);
[[nodiscard]] std::int16_t ToInteger(std::string_view text);
[[nodiscard]] std::int32_t ToLong(std::string_view text);

// The shortest digits that read back as the same Single, in fixed notation: 100000, 32.5, 0.1. Minus zero is
// "0". Raises Overflow when the value is not finite.
[[nodiscard]] std::string PlainText(float value, const NumberLocale& locale = CurrentNumberLocale());

} // namespace orvel
