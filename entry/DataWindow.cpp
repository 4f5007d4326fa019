// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/DataWindow.h"

#include "core/CodePage.h"
#include "core/EditCommands.h"
#include "core/EntryRules.h"
#include "core/FileNames.h"
#include "core/Messages.h"
#include "core/Platform.h"
#include "core/TestFile.h"

#include <string>
#include <vector>

namespace orvel {

DataWindow::DataWindow(DataView& ofWindow, ProgramWindows& ofProgram, const DataWindowKind& ofTest)
    : view(ofWindow), windows(ofProgram), kind(ofTest), form(ofWindow, ofTest.entries, ofTest.record),
      grid(ofWindow, *ofTest.grid) {}

void DataWindow::Form_Load() {
    ShowFileName();
    FillLists();
    TakeMainRecord();
    form.Load(EditCopy());
    LoadRest();
}

void DataWindow::FillLists() {
    for (const ComboList& list : kind.lists) {
        std::vector<std::string> entries;
        for (const char* entry : list.entries) {
            entries.push_back(FromUtf8(entry));
        }
        view.SetList(list.control, entries);
    }
}

void DataWindow::Form_Click() {
    grid.CommitEdit();
}

void DataWindow::TextBox_Change(std::string_view control) {
    form.CheckLength(control);
}

int DataWindow::NumberBox_KeyPress(int key) {
    return FilterNumericKey(key);
}

void DataWindow::mnuFileSave_Click() {
    (void)Save();
}

void DataWindow::mnuFileDiscard_Click() {
    cmdBtnCloseWithoutSaving_Click();
}

void DataWindow::mnuFileClose_Click() {
    switch (Ask("Save Changes to Client Data?", "Close Window", Buttons::YesNoCancel)) {
    case Reply::Yes:
        cmdBtnExitAndSave_Click();
        break;
    case Reply::No:
        cmdBtnCloseWithoutSaving_Click();
        break;
    default:
        break;
    }
}

void DataWindow::mnuEditUndo_Click() {
    SendUndo();
}

void DataWindow::mnuEditCut_Click() {
    SendCut();
}

void DataWindow::mnuEditCopy_Click() {
    SendCopy();
}

void DataWindow::mnueditPaste_Click() {
    SendPaste();
}

void DataWindow::mnuHelpInstructions_Click() {
    windows.ShowViewer(kViewHelp);
}

void DataWindow::mnuHelpAbout_Click() {
    windows.ShowAbout();
}

void DataWindow::cmdBtnExitAndSave_Click() {
    // What could not be written stays on the screen.
    if (Save() && Ask("Close data entry window?", "Close Window", Buttons::YesNo) == Reply::Yes) {
        view.Unload();
    }
}

void DataWindow::cmdBtnCloseWithoutSaving_Click() {
    if (Ask("Really close without saving data?", "Close Data Window", Buttons::YesNoCancel) == Reply::Yes) {
        view.Unload();
    }
}

void DataWindow::Store() {
    form.Store(EditCopy());
    StoreRest();
    PutMainRecord();
}

void DataWindow::ShowFileName() {
    view.SetText("labelFile", FileNameText(CurrentFile()));
}

bool DataWindow::Save() {
    Store();
    if (!SaveTestFile()) {
        return false;
    }
    CheckSavedTest();
    return true;
}

} // namespace orvel
