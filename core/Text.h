// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Texts are 8-bit texts in the program's code page: one character is one byte, so lengths, cuts and
// positions are plain numbers.
namespace orvel {

inline constexpr std::string_view kCr = "\r";
inline constexpr std::string_view kCrLf = "\r\n";
inline constexpr std::size_t kReportColumns = 80;

// The text without the blanks (0x20, nothing else) on its left and right.
[[nodiscard]] std::string_view Trim(std::string_view text);
[[nodiscard]] std::string_view TrimRight(std::string_view text);

// Lays a text into a column of `width` characters: trims it, cuts it to the width, then fills up.
// `alignment`: 'R' or 'r' fills on the right (left-justified), 'L' or 'l' on the left (right-justified),
// 'C' or 'c' puts (width - length) / 2 fill characters, halves to even, on each side, fills up on the right
// and cuts to the width again. Any other letter fills nothing.
[[nodiscard]] std::string PadText(std::string_view text, std::size_t width, char alignment, char fill);

// A text on the right of a column of `width` characters. One that leaves no blank before it is not cut: it
// takes a blank and the room it needs.
[[nodiscard]] std::string RightColumn(std::string_view text, std::size_t width);

// "True" or "False".
[[nodiscard]] std::string_view BooleanWord(bool value);

// The line between two sections of a report: 80 "=", and with a line end.
[[nodiscard]] std::string Rule();
[[nodiscard]] std::string RuleLine();

} // namespace orvel
