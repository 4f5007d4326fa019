// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/ProgramState.h"

#include <filesystem>

// The one open test file and its record, and what all windows that open, write or close it share.
namespace orvel {

// What the main window knows of a kind of test.
struct TestFileKind {
    const char* newTitle;
    const char* openTitle;
    const char* saveAsTitle;
    const char* filter;
    const char* extension;
    const char* noFileMessage;

    std::filesystem::path ProgramState::*file;
    // Between the program's record and a file; failures raise RunTimeError.
    void (*read)(const std::filesystem::path& path);
    void (*write)(const std::filesystem::path& path);
    // A blank record, or that of a new test, in place of the program's.
    void (*blank)();
    void (*makeNew)();
};

// That of the program's test kind.
[[nodiscard]] const TestFileKind& CurrentKind();

// The open file of the program's test kind; an empty path when none is open.
[[nodiscard]] const std::filesystem::path& CurrentFile();

// Closes whatever is open: no path is left, and both records are blank.
void CloseTestFile();
// Closes what is open and reads the file, which becomes the current one. Raises RunTimeError.
void OpenTestFile(const std::filesystem::path& path);
// Closes what is open and writes the record of a new test, which becomes the current one. False when it could
// not be written, which the user was told; no file is open then.
[[nodiscard]] bool CreateTestFile(const std::filesystem::path& path);
// Writes the current record to the current file, or to another one, which becomes the current file. False
// when it could not be written, which the user was told; nothing has changed then.
[[nodiscard]] bool SaveTestFile();
[[nodiscard]] bool SaveTestFileAs(const std::filesystem::path& path);

// Asks where to save, in the user's default folder; an empty path when cancelled.
[[nodiscard]] std::filesystem::path AskForName(const char* title, const char* defaultExtension,
                                               const char* filter);

void ShowFileSaveError();

} // namespace orvel
