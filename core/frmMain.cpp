// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/frmMain.h"

#include "core/DataEntry.h"
#include "core/EditCommands.h"
#include "core/FileNames.h"
#include "core/Messages.h"
#include "core/Platform.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "core/SafeFile.h"
#include "core/TestFile.h"
#include "core/Text.h"
#include "core/UserSettingsCheck.h"
#include "core/Version.h"

namespace orvel {

namespace {

namespace fs = std::filesystem;

} // namespace

void frmMain::Form_Load() {
    try {
        LoadUserSettings();
        LoadSoilTable();
    } catch (const FileError& error) {
        // Not trapped: only told with its path, since nobody typed one.
        Tell("The program can't keep its settings in " + PathText(Program().programDirectory) + ": " +
                 error.what() + ".\rStart it with --program-dir and a folder that it may write to.",
             kProgramTitle);
        throw;
    }
    view.CheckOptBtnCenterPivot();
    Program().testKind = kCenterPivot;
    view.SetStatusText("Open or Create New Data File to Begin");
    (void)CheckUserSettings();
}

void frmMain::Form_Activate() {
    const ProgramState& program = Program();
    for (const fs::path& file : {program.centerPivotFile, program.solidSetFile}) {
        if (!file.empty()) {
            ShowFileName(file);
        }
    }
}

void frmMain::Form_Unload() {
    windows.UnloadOthers();
}

void frmMain::OptBtnCenterPivot_Click() {
    Program().testKind = kCenterPivot;
}

void frmMain::OptBtnSolidSet_Click() {
    Program().testKind = kSolidSet;
}

void frmMain::mnuFileNew_Click() {
    mnuFileClose_Click();
    const TestFileKind& kind = CurrentKind();
    const fs::path path = AskForName(kind.newTitle, kind.extension, kind.filter);
    if (!path.empty() && CreateTestFile(path)) {
        ShowFileName(path);
    }
}

void frmMain::mnuFileOpen_Click() {
    const TestFileKind& kind = CurrentKind();
    const fs::path path = CurrentPlatform().fileDialogs->Open({.title = kind.openTitle,
                                                               .filter = kind.filter,
                                                               .defaultExtension = kind.extension,
                                                               .initialFolder = DefaultFolder(),
                                                               .flags = kHideReadOnly | kPathMustExist});
    // The file may have vanished since it was chosen.
    if (FileExists(path)) {
        OpenFile(path);
    }
}

void frmMain::mnuFileClose_Click() {
    CloseTestFile();
    view.SetStatusText("No File Open");
}

void frmMain::mnuFileSave_Click() {
    // kept: "solidset" is no kind, so that a solid-set test is not saved here.
    const std::string& kind = Program().testKind;
    if ((kind == "centerPivot" || kind == "solidset") && !CurrentFile().empty()) {
        (void)SaveTestFile();
    }
}

void frmMain::mnuFileSaveAs_Click() {
    const TestFileKind& kind = CurrentKind();
    const fs::path path = AskForName(kind.saveAsTitle, kind.extension, kind.filter);
    if (!path.empty() && SaveTestFileAs(path)) {
        ShowFileName(path);
    }
}

void frmMain::mnuExportSummary_Click() {
    try {
        // kept: title and extension of a test file, for both kinds.
        const fs::path path =
            AskForName("Save Center Pivot Data As - Enter File Name", "cpd", "Text Files (*.txt)|*.txt");
        if (path.empty() || CurrentFile().empty()) {
            return;
        }
        const std::string summary = Program().testKind == kCenterPivot ? windows.BuildCenterPivotSummary()
                                                                       : windows.BuildSolidSetSummary();
        ReplaceFile(path, summary + std::string{kCrLf}, Flush::ToDisk);
    } catch (const RunTimeError&) {
        // Trapped, whatever failed.
        ShowFileSaveError();
    }
}

void frmMain::mnuDataPrint_Click() {
    if (CurrentFile().empty()) {
        Tell("No File is open.", "No Open File");
        return;
    }
    windows.ShowViewer(Program().testKind == kCenterPivot ? kViewCenterPivotData : kViewSolidSetData);
}

void frmMain::mnuFileExit_Click() {
    windows.EndProgram();
}

void frmMain::mnuEditUndo_Click() {
    SendUndo();
}

void frmMain::mnuEditCut_Click() {
    SendCut();
}

void frmMain::mnuEditCopy_Click() {
    SendCopy();
}

void frmMain::mnuEditPaste_Click() {
    SendPaste();
}

void frmMain::mnuDataEntry_Click() {
    if (FileExists(CurrentFile())) {
        ShowDataWindow(windows);
    } else if (Ask("You have not created or opened a data file.\rWould you like to open an existing file?",
                   "Open Existing File", Buttons::YesNo) == Reply::Yes) {
        mnuFileOpen_Click();
    } else if (Ask("Would you like to create a new file?", "Create New File", Buttons::YesNo) == Reply::Yes) {
        mnuFileNew_Click();
    }
}

void frmMain::mnuViewReport_Click() {
    if (CurrentFile().empty()) {
        Tell(CurrentKind().noFileMessage + std::string{"Please open existing file or create new file."},
             "No Data File Open");
        return;
    }
    windows.ShowReport();
}

void frmMain::mnuSoilIntake_Click() {
    windows.ShowSoilIntake();
}

void frmMain::mnuUserSettings_Click() {
    windows.ShowUserData();
}

void frmMain::mnuInstructions_Click() {
    windows.ShowViewer(kViewHelp);
}

void frmMain::mnuHelpAbout_Click() {
    windows.ShowAbout();
}

void frmMain::cmdBtnEditExisting_Click() {
    if (!FileExists(CurrentFile())) {
        Tell("Please create a new file or open an existing file first", "No Data File Open");
        return;
    }
    ShowDataWindow(windows);
}

void frmMain::cmdBtnNewDataFile_Click() {
    mnuFileNew_Click();
}

void frmMain::cmdBtnOpenFile_Click() {
    if (!CurrentFile().empty() &&
        Ask("Close current file and open a new file?", "Open File", Buttons::YesNo) != Reply::Yes) {
        return;
    }
    mnuFileClose_Click();
    mnuFileOpen_Click();
}

void frmMain::cmdBtnGenerateReport_Click() {
    mnuViewReport_Click();
}

void frmMain::OpenGivenFile(const fs::path& path) {
    const bool isCenterPivot = HasExtension(path, "cpd");
    if (!FileExists(path)) {
        Tell("There is no file " + PathText(path) + ".", "Open File");
    } else if (!isCenterPivot && !HasExtension(path, "ssd")) {
        Tell(FileNameText(path) + " is neither a center pivot (*.cpd) nor a solid set (*.ssd) data file.",
             "Open File");
    } else {
        if (isCenterPivot) {
            view.CheckOptBtnCenterPivot();
            OptBtnCenterPivot_Click();
        } else {
            view.CheckOptBtnSolidSet();
            OptBtnSolidSet_Click();
        }
        OpenFile(path);
    }
}

void frmMain::OpenFile(const fs::path& path) {
    OpenTestFile(path);
    ShowFileName(path);
}

void frmMain::ShowFileName(const fs::path& path) {
    view.SetStatusText("File: " + FileNameText(path));
}

} // namespace orvel
