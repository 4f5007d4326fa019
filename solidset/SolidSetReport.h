// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// The sections of the solid-set report, in the report's order; between the results and the uniformity
// commentary stands the report's own layout graph. Each is plain text of the code page with CR LF line ends,
// made from the program's current test and the results of the last calculation; fields that a section prints
// are trimmed in the record, except the last one's. They raise Overflow for a result that is not finite.
namespace orvel {

[[nodiscard]] std::string SolidSetHeadingText();
[[nodiscard]] std::string SolidSetFieldText();
[[nodiscard]] std::string SolidSetSystemText();
[[nodiscard]] std::string SolidSetResultsText();
[[nodiscard]] std::string SolidSetUniformityText();
// kept: prints OtherComments with its padding, and ends without a line end.
[[nodiscard]] std::string SolidSetCommentsText();

} // namespace orvel
