// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Progress.h"

#include "cli/Output.h"
#include "cli/Terminal.h"

#include <string>

namespace orvel::cli {

Progress::Progress(const Options& options) : all(options.files.size()) {
    const bool goesToFiles = !options.output.empty() || !options.outputDirectory.empty();
    isShown = all > 1 && IsTerminal(stderr) && (goesToFiles || !IsTerminal(stdout));
    Show();
}

Progress::~Progress() {
    ShowPassingLine("");
}

void Progress::AddDone() {
    ++done;
    Show();
}

void Progress::Show() const {
    if (isShown) {
        ShowPassingLine(std::to_string(done) + " of " + std::to_string(all) + " files");
    }
}

} // namespace orvel::cli
