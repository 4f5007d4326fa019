// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/ProgramWindows.h"

#include <filesystem>
#include <string>

namespace orvel {

// The main window: which kind of test is worked with, which file is open, and the way to everything else.
//
// A command looks at the file of the chosen kind; choosing the other kind closes nothing. At most one file is
// open. Raises RunTimeError where a file can't be read, and at loading where the settings can't be kept; the
// program then tells the user and ends.
class frmMain {
public:
    class View {
    public:
        virtual ~View() = default;
        // Marks the option button without the event of a click.
        virtual void CheckOptBtnCenterPivot() = 0;
        virtual void CheckOptBtnSolidSet() = 0;
        virtual void SetStatusText(const std::string& text) = 0;
    };

    // Both must outlive the window.
    frmMain(View& ofWindow, ProgramWindows& ofProgram) : view(ofWindow), windows(ofProgram) {}

    void Form_Load();
    void Form_Activate();
    void Form_Unload();

    void OptBtnCenterPivot_Click();
    void OptBtnSolidSet_Click();

    void mnuFileNew_Click();
    void mnuFileOpen_Click();
    void mnuFileClose_Click();
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void mnuExportSummary_Click();
    void mnuDataPrint_Click();
    void mnuFileExit_Click();

    void mnuEditUndo_Click();
    void mnuEditCut_Click();
    void mnuEditCopy_Click();
    void mnuEditPaste_Click();
    void mnuEditPasteSpecial_Click() {} // kept: no action

    void mnuDataEntry_Click();
    void mnuViewReport_Click();
    void mnuSoilIntake_Click();
    void mnuUserSettings_Click();

    void mnuInstructions_Click();
    void mnuHelpAbout_Click();

    void cmdBtnEditExisting_Click();
    void cmdBtnNewDataFile_Click();
    void cmdBtnOpenFile_Click();
    void cmdBtnGenerateReport_Click();

    // Opens the file that the program was started with, as Open does; its extension says the kind. A file
    // that is none or of neither kind draws a message.
    void OpenGivenFile(const std::filesystem::path& path);

private:
    void OpenFile(const std::filesystem::path& path);
    void ShowFileName(const std::filesystem::path& path);

    View& view;
    ProgramWindows& windows;
};

} // namespace orvel
