// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/TestFile.h"

#include "core/Messages.h"
#include "core/Platform.h"
#include "core/RecordFiles.h"
#include "core/UserSettingsCheck.h"

#include <type_traits>

namespace orvel {

namespace {

namespace fs = std::filesystem;

template <auto Record>
void Read(const fs::path& path) {
    auto& record = Program().*Record;
    record = ReadTest<std::remove_reference_t<decltype(record)>>(path);
}

template <auto Record>
void Write(const fs::path& path) {
    WriteTest(path, Program().*Record);
}

constexpr TestFileKind kCenterPivotKind = {
    .newTitle = "Create New Data File - Center Pivot System",
    .openTitle = "Open Center Pivot Data",
    .saveAsTitle = "Save Center Pivot Data As - Enter File Name",
    .filter = "All Files (*.cpd)|*.cpd",
    .extension = "cpd",
    .noFileMessage = "No center pivot file loaded. ",
    .file = &ProgramState::centerPivotFile,
    .read = Read<&ProgramState::centerPivotTest>,
    .write = Write<&ProgramState::centerPivotTest>,
    .blank = [] { Program().centerPivotTest = {}; },
    .makeNew = [] { Program().centerPivotTest = NewCenterPivotTest(); },
};

constexpr TestFileKind kSolidSetKind = {
    .newTitle = "Create New Data File - Solid Set System",
    .openTitle = "Open Solid Set Data",
    .saveAsTitle = "Save Solid Set Data As - Enter File Name",
    .filter = "All Files (*.ssd)|*.ssd",
    .extension = "ssd",
    .noFileMessage = "No solid set file loaded. ",
    .file = &ProgramState::solidSetFile,
    .read = Read<&ProgramState::solidSetTest>,
    .write = Write<&ProgramState::solidSetTest>,
    .blank = [] { Program().solidSetTest = {}; },
    .makeNew = [] { Program().solidSetTest = NewSolidSetTest(); },
};

void Close(const TestFileKind& kind) {
    kind.blank();
    (Program().*kind.file).clear();
}

// Writes, and tells the user when that fails.
bool TryToWrite(const fs::path& path) {
    try {
        CurrentKind().write(path);
        return true;
    } catch (const RunTimeError&) {
        // Trapped: the user can choose another place.
        ShowFileSaveError();
        return false;
    }
}

} // namespace

const TestFileKind& CurrentKind() {
    return Program().testKind == kCenterPivot ? kCenterPivotKind : kSolidSetKind;
}

const fs::path& CurrentFile() {
    return Program().*CurrentKind().file;
}

void CloseTestFile() {
    Close(kCenterPivotKind);
    Close(kSolidSetKind);
}

void OpenTestFile(const fs::path& path) {
    CloseTestFile();
    CurrentKind().read(path);
    Program().*CurrentKind().file = path;
}

bool CreateTestFile(const fs::path& path) {
    CloseTestFile();
    CurrentKind().makeNew();
    if (!TryToWrite(path)) {
        CloseTestFile();
        return false;
    }
    Program().*CurrentKind().file = path;
    return true;
}

bool SaveTestFile() {
    return TryToWrite(CurrentFile());
}

bool SaveTestFileAs(const fs::path& path) {
    if (!TryToWrite(path)) {
        return false;
    }
    const TestFileKind& kind = CurrentKind();
    Close(&kind == &kCenterPivotKind ? kSolidSetKind : kCenterPivotKind);
    Program().*kind.file = path;
    return true;
}

fs::path AskForName(const char* title, const char* defaultExtension, const char* filter) {
    return CurrentPlatform().fileDialogs->Save({.title = title,
                                                .filter = filter,
                                                .defaultExtension = defaultExtension,
                                                .initialFolder = DefaultFolder(),
                                                .flags = kSaveDialogFlags});
}

void ShowFileSaveError() {
    TellError("Error in saving file. Please check drives and disk space.", "File Save Error");
}

} // namespace orvel
