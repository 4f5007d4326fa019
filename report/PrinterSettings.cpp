// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/PrinterSettings.h"

#include "core/Platform.h"
#include "core/ProgramState.h"

namespace orvel {

void PrinterSettings(std::string_view word) {
    Printer& printer = *CurrentPlatform().printer;
    auto& saved = Program().savedPrinterSettings;
    if (word == kSaveThem) {
        saved = {.orientation = printer.PaperOrientation(), .copies = printer.Copies()};
    } else if (word == kSetBack && saved) {
        printer.SetPaperOrientation(saved->orientation);
        printer.SetCopies(saved->copies);
    }
}

} // namespace orvel
