// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"
#include "tests/support/TestFiles.h"

#include <filesystem>

// A place where nothing that belongs to the user is seen or changed, and where every run finds the same.
namespace orvel::monkey {

// The folders of a run: the tests, the program's and the user's own.
class Sandbox {
public:
    // Sets the environment, too: no screen, no printer, C.UTF-8, UTC. Before any QApplication.
    Sandbox();

    [[nodiscard]] std::filesystem::path Tests() const { return folder / "tests"; }

    [[nodiscard]] std::filesystem::path ProgramDirectory() const { return folder / "program"; }

    // Puts the examples back, and what no file should be: one that is too short, one that is too long, noise.
    void LayTestFiles() const;

private:
    testing::TemporaryFolder folder;
};

// Sets code page, numbers, program directory and what the user has entered about himself.
void BeginProgram(const Sandbox& sandbox);

// A clock that goes on with every look at it, so that the pause at start-up ends, and never shows second 58.
class TickingClock : public Clock {
public:
    DateTime Now() override;

private:
    int looks = 0;
};

// Hands out files of one folder only; any other name counts as cancelled.
class FencedFileDialogs : public FileDialogService {
public:
    FencedFileDialogs(FileDialogService& forDialogs, std::filesystem::path ofFiles)
        : dialogs(forDialogs), fence(std::move(ofFiles)) {}

    std::filesystem::path Open(const FileDialog& dialog) override;

    std::filesystem::path Save(const FileDialog& dialog) override { return Fenced(dialogs.Save(dialog)); }

private:
    [[nodiscard]] std::filesystem::path Fenced(const std::filesystem::path& path) const;

    FileDialogService& dialogs;
    std::filesystem::path fence;
};

// Shows the real print dialog; whatever is chosen, the printer is a file and makes few copies.
class PaperlessPrintDialog : public PrintDialogService {
public:
    PaperlessPrintDialog(PrintDialogService& forDialog, std::filesystem::path toPrintTo)
        : dialogs(forDialog), file(std::move(toPrintTo)) {}

    void ShowPrinter(PrintDialog& dialog) override;

private:
    PrintDialogService& dialogs;
    std::filesystem::path file;
};

} // namespace orvel::monkey
