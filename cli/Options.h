// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace orvel::cli {

// What a call of the command line asks for.
struct Options {
    std::vector<std::filesystem::path> files;
    std::string kind; // "centerPivot" or "solidSet"; empty: by each file's extension
    std::filesystem::path programDirectory;
    std::optional<DateTime> now;
    std::string format = "text";
    bool json = false;
    std::filesystem::path output;          // empty: standard output
    std::filesystem::path outputDirectory; // empty: none
};

} // namespace orvel::cli
