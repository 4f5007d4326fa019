// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/ReportFont.h"

namespace orvel {

void UseReportFont(RichTextBox& box) {
    box.Select(0, 0);
    box.SetSelectionBold(false);
    box.SetSelectionItalic(false);
    box.SetFontName(kReportFont);
    box.SetSelectionFontSize(kReportFontPoints);
}

} // namespace orvel
