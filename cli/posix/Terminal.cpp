// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Terminal.h"

#include <unistd.h>

namespace orvel::cli {

bool IsTerminal(std::FILE* stream) {
    return ::isatty(::fileno(stream)) != 0;
}

// The streams are what they should be.
Terminal::Terminal() = default;
Terminal::~Terminal() = default;

} // namespace orvel::cli
