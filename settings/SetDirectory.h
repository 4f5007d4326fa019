// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace orvel {

// Lets the user choose the folder for the test files; an empty path when cancelled.
[[nodiscard]] std::filesystem::path SetDirectory();

} // namespace orvel
