// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"
#include "cli/Terminal.h"
#include "core/CodePage.h"
#include "core/NumberLocale.h"
#include "core/ProgramStart.h"

int main(int argc, char** argv) {
    orvel::SurviveFileSizeLimit();
    orvel::UseCodePage(orvel::CodePage::OfSystem());
    orvel::UseNumberLocale(orvel::SystemNumberLocale());
    return orvel::cli::OnTerminal(
        [&] { return orvel::cli::RunCommandLine(orvel::CallArguments(argc, argv)); });
}
