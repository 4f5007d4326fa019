// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Terminal.h"

#include <unistd.h>

namespace orvel::cli {

bool IsTerminal(std::FILE* stream) {
    return ::isatty(::fileno(stream)) != 0;
}

// The streams are so by themselves.
int OnTerminal(const std::function<int()>& work) {
    return work();
}

} // namespace orvel::cli
