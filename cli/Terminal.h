// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>

namespace orvel::cli {

// Whether somebody looks on while the stream is written.
[[nodiscard]] bool IsTerminal(std::FILE* stream);

// For its lifetime the standard streams take and give texts byte for byte, and what is written to a terminal
// is shown as the UTF-8 that it is.
class Terminal {
public:
    Terminal();
    ~Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

private:
    unsigned codePageBefore = 0; // 0: unchanged
};

} // namespace orvel::cli
