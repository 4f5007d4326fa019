// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace orvel::ui {

// What the program was called with; full paths.
struct Options {
    std::optional<std::filesystem::path> file;
    std::filesystem::path programDirectory;
};

// Reads the call (CallArguments in core/ProgramStart). Nothing to start when it only asked for the help or
// the version, which were printed, or was wrong, which was told on standard error; `status` is then the
// program's.
[[nodiscard]] std::optional<Options> ReadOptions(const std::vector<std::string>& arguments, int& status);

} // namespace orvel::ui
