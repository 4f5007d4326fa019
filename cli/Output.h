// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/SafeFile.h"

#include <filesystem>
#include <span>
#include <string_view>

// Where the command line's texts go.
namespace orvel::cli {

// Writes to standard output. Raises CommandError when that fails (a full disk behind a redirection), at the
// latest when it is flushed.
void Print(std::string_view text);
void FlushOutput();
// Writes a text to standard error.
void PrintError(std::string_view text);
// "orvel-cli: subject: reason" as one line on standard error.
void PrintComplaint(std::string_view subject, std::string_view reason);

// Replaces a file as a whole. Raises CommandError.
void WriteOutput(const std::filesystem::path& path, std::string_view content, Flush flush);

// Raises CommandError when the output is one of the files that are read: nothing may be overwritten by what
// is made from it.
void RefuseToOverwriteInput(const std::filesystem::path& output,
                            std::span<const std::filesystem::path> inputs);

} // namespace orvel::cli
