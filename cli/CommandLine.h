// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace orvel::cli {

// Reads a call (CallArguments in core/ProgramStart), does what it asks and returns its exit status. Writes
// one line to standard error for a wrong call and for whatever goes wrong with a file; never ends in an
// exception.
[[nodiscard]] int RunCommandLine(const std::vector<std::string>& arguments) noexcept;

} // namespace orvel::cli
