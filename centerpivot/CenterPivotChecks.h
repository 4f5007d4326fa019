// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvel {

// Inspects the current center-pivot test before a report: shows its errors in one box and its warnings in
// another, and is true when there is no error. Fields that are tested are trimmed in the record. Traps
// nothing: raises Subscript out of range for 299 or 300 readings, Overflow for a volume that is not finite.
[[nodiscard]] bool CheckCenterPivotData();

} // namespace orvel
