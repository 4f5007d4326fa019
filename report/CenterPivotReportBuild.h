// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace orvel {

// What the report shows instead of a report when the data checks found errors.
inline constexpr const char* kReportNotCreated = "Errors in data file - report not created.";

// Builds the whole report of the program's current center-pivot test into `text`: runs the data checks, then
// the calculation, then joins the sections in their order. False when the checks found errors: `text` is then
// kReportNotCreated and nothing was calculated. Has no trap of its own: a run-time error of the checks or of
// a section passes to the caller and leaves `text` as it was.
[[nodiscard]] bool BuildCenterPivotReport(std::string& text);

} // namespace orvel
