// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Json.h"

#include <optional>
#include <string>

// The results of the last calculation, for programs and for people.
namespace orvel::cli {

[[nodiscard]] Json CenterPivotResultsJson(const std::optional<float>& applicationRate);
// One line for each result and each cup, numbers with "." in every locale; in the code page.
[[nodiscard]] std::string CenterPivotResultsListing(const std::optional<float>& applicationRate);

} // namespace orvel::cli
