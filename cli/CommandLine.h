// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvel::cli {

// Reads a call, does what it asks and returns its exit status. Writes one line to standard error for a wrong
// call and for whatever goes wrong with a file; never ends in an exception.
[[nodiscard]] int RunCommandLine(int argc, const char* const* argv) noexcept;

} // namespace orvel::cli
