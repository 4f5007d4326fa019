// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/UncaughtError.h"

#include "core/Messages.h"
#include "core/Version.h"
#include "entry/DataWindow.h"

#include <cstdlib>
#include <string>

namespace orvel::ui {

void EndByError(const RunTimeError& error) {
    KeepOpenEntries();
    const std::string text =
        "Run-time error '" + std::to_string(error.Number()) + "':\r\r" + error.Description();
    TellError(text, kProgramTitle);
    // Windows and event loops may be nested here: nothing more is to run.
    std::_Exit(EXIT_FAILURE);
}

} // namespace orvel::ui
