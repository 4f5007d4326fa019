// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Output.h"

#include "cli/ExitStatus.h"
#include "core/FileNames.h"
#include "core/RunTimeError.h"
#include "core/Unicode.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <system_error>

namespace orvel::cli {

namespace {

[[noreturn]] void FailToPrint() {
    throw CommandError(kFileFailed, "standard output",
                       "cannot write: " + std::generic_category().message(errno));
}

// Whether a terminal, or a reader of lines, takes the character for more than something to show.
bool IsControl(char32_t character) {
    constexpr char32_t kLineSeparator = 0x2028;
    constexpr char32_t kParagraphSeparator = 0x2029;
    return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == kLineSeparator ||
           character == kParagraphSeparator;
}

std::string Escaped(char32_t control) {
    switch (control) {
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        std::array<char, 7> text{};
        (void)std::snprintf(text.data(), text.size(), "\\u%04x", static_cast<unsigned>(control));
        return text.data();
    }
}

void WriteError(std::string_view text) {
    // Nowhere is left to tell that this failed.
    (void)std::fwrite(text.data(), 1, text.size(), stderr);
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
    ShowPassingLine("");
    WriteError(text);
}

void ShowPassingLine(std::string_view text) {
    static std::size_t shownLength = 0;
    if (shownLength > 0) {
        WriteError("\r" + std::string(shownLength, ' ') + "\r");
    }
    WriteError(text);
    shownLength = text.size();
}

std::string OnOneLine(std::string_view utf8) {
    std::string line;
    for (const char32_t character : UnicodeOf(utf8)) {
        if (IsControl(character)) {
            line += Escaped(character);
        } else {
            AppendUtf8(line, character);
        }
    }
    return line;
}

void PrintComplaint(std::string_view subject, std::string_view reason) {
    std::string line = "orvel-cli: ";
    if (!subject.empty()) {
        line.append(OnOneLine(subject)).append(": ");
    }
    PrintError(line.append(OnOneLine(reason)).append("\n"));
}

void WriteOutput(const std::filesystem::path& path, std::string_view content, Flush flush) {
    try {
        ReplaceFile(path, content, flush);
    } catch (const FileError& error) {
        throw CommandError(kFileFailed, PathUtf8(path), error.what());
    }
}

Inputs::Inputs(std::span<const std::filesystem::path> files) {
    for (const std::filesystem::path& file : files) {
        if (const auto identity = IdentityOf(file)) {
            identities.insert(*identity);
        }
    }
}

void Inputs::RefuseToOverwrite(const std::filesystem::path& output) const {
    if (const auto identity = IdentityOf(output); identity && identities.contains(*identity)) {
        throw CommandError(kWrongUsage, PathUtf8(output), "the output would overwrite the input");
    }
}

} // namespace orvel::cli
