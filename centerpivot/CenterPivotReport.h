// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// The sections of the center-pivot report, in the report's order. Each is plain text of the code page with
// CR LF line ends, made from the program's current test and the results of the last calculation; fields that
// a section prints are trimmed in the record. They trap nothing: an entry that is not a number raises Type
// mismatch, an arithmetic fault Overflow or Division by zero.
namespace orvel {

[[nodiscard]] std::string CenterPivotHeadingText();
[[nodiscard]] std::string CenterPivotFieldText();
[[nodiscard]] std::string CenterPivotSystemText();
[[nodiscard]] std::string CenterPivotResultsText();
// One line, or empty when the rate can't be computed.
[[nodiscard]] std::string CenterPivotApplicationRateText();
[[nodiscard]] std::string CenterPivotUniformityText();
// kept: prints OtherComments with its padding, and does not trim it.
[[nodiscard]] std::string CenterPivotCommentsText();

} // namespace orvel
