// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace orvel {

// Runs the calculation, then writes one line for each point of the X by Y grid, x outside and y inside: x, y
// and the depth in inches of the point of that number ("1,2,0.69"), separated by commas and ended by CR LF;
// numbers have "." in every locale. Points behind the counted cups have the depth that stands for them, 0 in
// a fresh run. A calculation that failed has shown its error; what stands is written. Raises Type mismatch or
// Overflow for a number of cups along an axis that is no 16-bit number, Subscript out of range at point 301.
[[nodiscard]] std::string BuildSolidSetSummary();

} // namespace orvel
