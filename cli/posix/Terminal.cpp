// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Terminal.h"

namespace orvel::cli {

// The streams are so by themselves.
int OnTerminal(const std::function<int()>& work) {
    return work();
}

} // namespace orvel::cli
