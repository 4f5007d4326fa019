// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Json.h"

#include <string>

// All of these run the calculation of the open test and put its results out.
namespace orvel::cli {

// For programs.
[[nodiscard]] Json CenterPivotResultsJson();
[[nodiscard]] Json SolidSetResultsJson();

// For people: one line for each result and each cup, numbers with "." in every locale; UTF-8.
[[nodiscard]] std::string CenterPivotResultsListing();
[[nodiscard]] std::string SolidSetResultsListing();

} // namespace orvel::cli
