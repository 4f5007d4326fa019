// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

// What main does first.
namespace orvel {

// A file that grows over the user's limit is a failed write from now on and not the program's end.
void SurviveFileSizeLimit();

// The arguments of the call, without the program's name, as texts of the system (core/CodePage): what main
// was given, but on Windows, where that has lost what the code page lacks, the call's own Unicode as UTF-8.
[[nodiscard]] std::vector<std::string> CallArguments(int argc, const char* const* argv);

} // namespace orvel
