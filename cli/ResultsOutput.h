// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/TestKinds.h"

// Runs the calculation of the open test and puts its results out.
namespace orvel::cli {

[[nodiscard]] Results CenterPivotResultsOutput();
[[nodiscard]] Results SolidSetResultsOutput();

} // namespace orvel::cli
