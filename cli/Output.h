// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/FileIdentity.h"
#include "core/SafeFile.h"

#include <filesystem>
#include <set>
#include <span>
#include <string>
#include <string_view>

// Where the command line's texts go.
namespace orvel::cli {

// Writes to standard output. Raises CommandError when that fails (a full disk behind a redirection), at the
// latest when it is flushed.
void Print(std::string_view text);
void FlushOutput();
// Writes a text to standard error.
void PrintError(std::string_view text);
// Shows a line on standard error that the next one takes the place of, as does whatever else is written
// there; an empty one only takes away what is shown.
void ShowPassingLine(std::string_view text);
// A UTF-8 text as a part of one line: line ends and other control characters as "\n", "\r", "\t" or
// "\u001b", what is not UTF-8 as U+FFFD.
[[nodiscard]] std::string OnOneLine(std::string_view utf8);
// "orvel-cli: subject: reason" as one line on standard error. Both are UTF-8 and go through OnOneLine.
void PrintComplaint(std::string_view subject, std::string_view reason);

// Replaces a file as a whole. Raises CommandError.
void WriteOutput(const std::filesystem::path& path, std::string_view content, Flush flush);

// The files that a call reads. Nothing may be overwritten by what is made from it.
class Inputs {
public:
    explicit Inputs(std::span<const std::filesystem::path> files);

    // Raises CommandError when the output is one of them, under whatever name.
    void RefuseToOverwrite(const std::filesystem::path& output) const;

private:
    std::set<FileIdentity> identities;
};

} // namespace orvel::cli
