// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"
#include "core/CodePage.h"
#include "core/NumberLocale.h"

#include <csignal>

int main(int argc, char** argv) {
    // A file that grows over its limit is then a failed write and not the program's end.
    (void)std::signal(SIGXFSZ, SIG_IGN);
    orvel::UseCodePage(orvel::CodePage::OfSystem());
    orvel::UseNumberLocale(orvel::SystemNumberLocale());
    return orvel::cli::RunCommandLine(argc, argv);
}
