// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/RichTextBox.h"

namespace orvel {

// The one font of reports and listings, whose columns need letters of one width.
inline constexpr const char* kReportFont = "Courier New";
inline constexpr int kReportFontPoints = 9;

// Makes the box ready for a text in that font, neither bold nor italic: caret at the beginning, then the
// format there, in this order.
void UseReportFont(RichTextBox& box);

} // namespace orvel
