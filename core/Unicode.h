// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// UTF-8 and code points.
namespace orvel {

// What stands for a character that can't be shown.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

// What TakeUtf8 gives where the text is not UTF-8; no character has this number.
inline constexpr char32_t kNoCharacter = 0xFFFFFFFF;

void AppendUtf8(std::string& utf8, char32_t codePoint);

// Takes the next character off a text that is not empty; kNoCharacter, and one byte, where it is not UTF-8.
[[nodiscard]] char32_t TakeUtf8(std::string_view& utf8);

[[nodiscard]] std::string Utf8Of(std::u32string_view text);
// A byte that is not UTF-8 becomes the replacement character.
[[nodiscard]] std::u32string UnicodeOf(std::string_view utf8);

} // namespace orvel
