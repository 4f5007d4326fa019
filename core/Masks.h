// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/NumberLocale.h"

#include <string>
#include <string_view>

namespace orvel {

// Writes a number by a mask of "0", "#", ",", "." and "%".
//
//  - The value is brought to its decimal text (7 significant digits for a Single, 15 for a double), then
//    rounded at the mask's last decimal, halves away from zero.
//  - "0" always shows its digit, "#" only a significant one; more integer digits than places are all shown.
//  - "," between the integer places groups by thousands; "." is always shown, also with no digit behind it;
//    both are written as the locale writes them.
//  - "%" multiplies by 100 and is shown. A result of zero has no sign.
//
// So "##" of 0 is empty, "#,###.00" of 1234.5 is "1,234.50", "00" of 7.4 is "07", "00%" of 0.796 is "80%".
// Raises Overflow when the value is not finite, Invalid procedure call for any other character in the mask.
[[nodiscard]] std::string FormatMask(float value, std::string_view mask,
                                     const NumberLocale& locale = CurrentNumberLocale());
[[nodiscard]] std::string FormatMask(double value, std::string_view mask,
                                     const NumberLocale& locale = CurrentNumberLocale());

} // namespace orvel
