// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Output.h"

#include "cli/ExitStatus.h"
#include "core/RunTimeError.h"

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>

namespace orvel::cli {

namespace {

[[noreturn]] void FailToPrint() {
    throw CommandError(kFileFailed, "standard output",
                       "cannot write: " + std::generic_category().message(errno));
}

} // namespace

void Print(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) {
        FailToPrint();
    }
}

void FlushOutput() {
    if (std::fflush(stdout) != 0) {
        FailToPrint();
    }
}

void PrintError(std::string_view text) {
    // Nowhere is left to tell that this failed.
    (void)std::fwrite(text.data(), 1, text.size(), stderr);
}

void PrintComplaint(std::string_view subject, std::string_view reason) {
    std::string line = "orvel-cli: ";
    if (!subject.empty()) {
        line.append(subject).append(": ");
    }
    PrintError(line.append(reason).append("\n"));
}

void WriteOutput(const std::filesystem::path& path, std::string_view content, Flush flush) {
    try {
        ReplaceFile(path, content, flush);
    } catch (const FileError& error) {
        throw CommandError(kFileFailed, path.native(), error.what());
    }
}

void RefuseToOverwriteInput(const std::filesystem::path& output,
                            std::span<const std::filesystem::path> inputs) {
    for (const std::filesystem::path& input : inputs) {
        std::error_code error;
        if (std::filesystem::equivalent(output, input, error) &&
            !std::filesystem::is_character_file(output, error)) {
            throw CommandError(kWrongUsage, output.native(), "the output would overwrite the input");
        }
    }
}

} // namespace orvel::cli
