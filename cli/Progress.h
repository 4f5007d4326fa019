// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Options.h"

#include <cstddef>

namespace orvel::cli {

// Tells on standard error how many of several files are done, in a line that is written over and is gone at
// the end: "12 of 300 files". Only where standard error is a terminal, and not where the results themselves
// run through it.
class Progress {
public:
    explicit Progress(const Options& options);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void AddDone();

private:
    void Show() const;

    std::size_t done = 0;
    std::size_t all = 0;
    bool isShown = false;
};

} // namespace orvel::cli
