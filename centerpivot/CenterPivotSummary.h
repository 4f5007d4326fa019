// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace orvel {

// Runs the calculation, then writes one line for each cup: its number, its distance from the pivot in feet
// and its depth in inches ("1,30,0.50"), separated by commas and ended by CR LF; numbers have "." in every
// locale. Empty when there is no cup. A calculation that failed has shown its error; what stands is written.
// Raises Overflow for a distance that is not a finite number.
[[nodiscard]] std::string BuildCenterPivotSummary();

} // namespace orvel
