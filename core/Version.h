// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace orvel {

inline constexpr const char* kProgramTitle = "ORVEL";

// Major, minor and revision number: "1.2.3".
[[nodiscard]] const char* ProgramVersion();

// The same as the windows show it: "Version 1.2.3".
[[nodiscard]] std::string VersionText();

} // namespace orvel
