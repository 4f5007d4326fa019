// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace orvel {

inline constexpr std::string_view kSaveThem = "SaveThem";
inline constexpr std::string_view kSetBack = "SetBack";

// "SaveThem" remembers the printer's orientation and copies, "SetBack" gives them back to it, if they were
// remembered since program start. Any other word does nothing.
void PrinterSettings(std::string_view word);

} // namespace orvel
