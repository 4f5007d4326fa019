// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace orvel {

// The printable listing of the current solid-set test: every field of the record with its label, then one
// line for each measurement up to the last entry that holds anything. It computes and counts nothing and
// leaves the record as it is. Raises Overflow for a measurement that is not a finite number.
[[nodiscard]] std::string SolidSetListingText();

} // namespace orvel
