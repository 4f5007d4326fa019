// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdio>
#include <string>
#include <string_view>

// The names of files that are being written, which take another file's name when they are complete.
//
// A folder has few names for them, ".orvel-save-1" to ".orvel-save-8", one for each save that is under way at
// the same time; should they not suffice, other ".orvel-" and six digits of hexadecimal. Who writes one keeps
// others from it, so that one which nobody holds is what a killed program left: whatever is saved next in
// that folder removes it.
namespace orvel {

inline constexpr std::array<std::string_view, 8> kTemporaryNames = {
    ".orvel-save-1", ".orvel-save-2", ".orvel-save-3", ".orvel-save-4",
    ".orvel-save-5", ".orvel-save-6", ".orvel-save-7", ".orvel-save-8",
};

// How many other names are tried.
inline constexpr unsigned kMostOtherNames = 1000;

[[nodiscard]] inline std::string OtherTemporaryName(unsigned number) {
    constexpr unsigned kSixDigits = 0xFFFFFF;
    std::array<char, 16> text{};
    (void)std::snprintf(text.data(), text.size(), ".orvel-%06x", number & kSixDigits);
    return text.data();
}

} // namespace orvel
