// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Rules that every entry window applies while the user types.
namespace orvel {

// The length limit of a free-text box: a text longer than `maximum` characters draws the message
// "Maximim Characters in this field is " and the maximum, and is cut to it. Returns the text to show.
[[nodiscard]] std::string LimitLength(std::string_view text, std::size_t maximum);

// The numeric key filter: passes backspace (8), "." and the digits; any other key beeps and becomes 0, which
// means dropped. kept: a second decimal point passes.
[[nodiscard]] int FilterNumericKey(int key);

// A soil's intake rate as the windows show it, with two decimals; nothing for what a damaged file has in
// place of a number, so that it can be mended.
[[nodiscard]] std::string RateText(float rate);

} // namespace orvel
