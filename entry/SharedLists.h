// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Records.h"

#include <array>

// The lists that the combo boxes of both data windows offer.
namespace orvel {

inline constexpr std::array kSoilSlopes = {kPromptSoilSlope, "0-1 Percent", "1-3 Percent", "3> Percent",
                                           "Unknown"};
inline constexpr std::array kOperatingTimes = {kPromptOperatingTimes, "Daytime Only", "Nighttime Only",
                                               "Combination Day & Night", "Unknown"};

} // namespace orvel
