// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace orvel {

// Looks for personal fields of the program's user settings that are blank and lists them in one message.
// True when nothing is missing.
[[nodiscard]] bool CheckUserSettings();

// The folder that the dialogs for test files open in: the user's default directory, which is trimmed in the
// record, or an empty path when there is no such folder.
[[nodiscard]] std::filesystem::path DefaultFolder();

} // namespace orvel
