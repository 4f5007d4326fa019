// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Printing.h"
#include "report/RichTextBox.h"

#include <functional>

namespace orvel {

// Prints the whole text of the box as one job of the printer, page by page, with margins of one inch from the
// paper's edges. Raises what the printer and the box raise; the job is then still to be dropped.
void PrintRichText(RichTextBox& box);

// The print dialog of the report and the viewer, as it opens first.
[[nodiscard]] PrintDialog NewPrintDialog();

// Whether there is a text to print; the user is told when there is none.
[[nodiscard]] bool HasTextToPrint(const RichTextBox& box);

// Runs the steps of a print command. A cancelled dialog ends them with no message; any other run-time error
// drops the job and is told.
void RunPrintCommand(const std::function<void()>& steps);

} // namespace orvel
