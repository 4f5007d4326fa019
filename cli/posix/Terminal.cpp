// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Terminal.h"

namespace orvel::cli {

// The streams are what they should be.
Terminal::Terminal() = default;
Terminal::~Terminal() = default;

} // namespace orvel::cli
