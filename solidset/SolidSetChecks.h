// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvel {

// Inspects the current solid-set test before a report: shows its errors in one box and its warnings in
// another, and is true when there is no error. Fields that are tested are trimmed in the record. Traps
// nothing: raises Type mismatch or Overflow for a number of cups along an axis that is blank or no 16-bit
// number (no message then), Subscript out of range for 299 or 300 readings, Overflow for a volume that is
// not finite.
[[nodiscard]] bool SolidSetDataCheck();

} // namespace orvel
