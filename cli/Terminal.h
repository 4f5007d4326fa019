// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>

namespace orvel::cli {

// Whether somebody looks on while the stream is written.
[[nodiscard]] bool IsTerminal(std::FILE* stream);

} // namespace orvel::cli
