// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>

namespace orvel::ui {

// What the program was called with; full paths.
struct Options {
    std::optional<std::filesystem::path> file;
    std::filesystem::path programDirectory;
};

// Reads the call. Nothing to start when it only asked for the help or the version, which were printed, or was
// wrong, which was told on standard error; `status` is then the program's.
[[nodiscard]] std::optional<Options> ReadOptions(int argc, const char* const* argv, int& status);

} // namespace orvel::ui
