// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/DataWindow.h"

#include "core/CodePage.h"
#include "core/EditCommands.h"
#include "core/EntryRules.h"
#include "core/FileNames.h"
#include "core/Messages.h"
#include "core/Platform.h"
#include "core/RunTimeError.h"
#include "core/TestFile.h"

#include <exception>
#include <string>
#include <utility>
#include <vector>

namespace orvel {

namespace {

DataWindow* openWindow = nullptr; // they are modal: one at most

bool IsCheckBox(std::string_view control) {
    return control.starts_with("chkBox");
}

} // namespace

DataWindow::DataWindow(DataView& ofWindow, ProgramWindows& ofProgram, const DataWindowKind& ofTest)
    : view(ofWindow), windows(ofProgram), kind(ofTest), form(ofWindow, ofTest.entries, ofTest.record),
      grid(ofWindow, *ofTest.grid, [this] { EntryMade(); }) {
    openWindow = this;
}

DataWindow::~DataWindow() {
    if (openWindow == this) {
        openWindow = nullptr;
    }
}

void DataWindow::Form_Load() {
    ShowFileName();
    FillLists();
    TakeMainRecord();
    form.Load(EditCopy());
    LoadRest();
    if (const std::optional<EntryState> state = recovery.emplace(Capture()).Offer()) {
        Restore(*state);
    }
}

void DataWindow::Form_Show() {
    if (const auto edit = std::exchange(editToResume, {})) {
        view.ShowGridPage();
        grid.ResumeEdit(*edit);
    }
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

void DataWindow::EntryMade() {
    if (recovery && !isKeepPosted) {
        isKeepPosted = true;
        view.PostKeepEntries();
    }
}

void DataWindow::KeepEntries() {
    isKeepPosted = false;
    if (!recovery) {
        return;
    }
    try {
        recovery->Keep(Capture());
        if (std::exchange(isFailureShown, false)) {
            view.ShowNotice("");
        }
    } catch (const FileError& error) {
        // Trapped: it must not stop anybody from typing.
        if (std::exchange(isFailureShown, true)) {
            return;
        }
        view.ShowNotice(std::string("What you type can't be kept for the case of a crash: ") + error.what() +
                        ". Please save often.");
    }
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
        Close();
    }
}

void DataWindow::cmdBtnCloseWithoutSaving_Click() {
    if (Ask("Really close without saving data?", "Close Data Window", Buttons::YesNoCancel) == Reply::Yes) {
        Close();
    }
}

void DataWindow::Close() {
    if (recovery) {
        recovery->Discard();
    }
    // What happens while the window goes is no entry.
    recovery.reset();
    view.Unload();
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
    NoteSaved();
    CheckSavedTest();
    return true;
}

void DataWindow::NoteSaved() {
    if (recovery) {
        recovery->Saved(Capture());
    }
}

EntryState DataWindow::Capture() const {
    EntryState state;
    const auto captureCheck = [&](std::string_view button) {
        if (const auto isChecked = view.IsChecked(button)) {
            state.checks.emplace(button, *isChecked);
        }
    };
    for (const EntryField& entry : kind.entries) {
        if (IsCheckBox(entry.control)) {
            captureCheck(entry.control);
        } else {
            state.texts.emplace(entry.control, view.TypedText(entry.control));
        }
    }
    for (const std::string_view button : kind.optionButtons) {
        captureCheck(button);
    }
    for (int row = MeasurementGrid::kFixedRows; row <= MeasurementGrid::kLastRow; ++row) {
        std::vector<std::string>& cells = state.cells.emplace_back();
        for (int column = 1; std::cmp_less(column, kind.grid->columns.size()); ++column) {
            cells.push_back(ToUtf8(grid.Cell(row, column)));
        }
    }
    state.edit = editToResume;
    if (grid.IsEditing()) {
        state.edit = {grid.CurrentRow(), grid.CurrentColumn(), ToUtf8(view.EditorText())};
    }
    return state;
}

void DataWindow::Restore(const EntryState& state) {
    for (const EntryField& entry : kind.entries) {
        const auto text = state.texts.find(std::string{entry.control});
        if (text != state.texts.end()) {
            view.SetTypedText(entry.control, text->second);
        }
    }
    const auto restoreCheck = [&](std::string_view button) {
        const auto isChecked = state.checks.find(std::string{button});
        if (isChecked != state.checks.end()) {
            view.SetChecked(button, isChecked->second);
        }
    };
    for (const EntryField& entry : kind.entries) {
        if (IsCheckBox(entry.control)) {
            restoreCheck(entry.control);
        }
    }
    for (const std::string_view button : kind.optionButtons) {
        restoreCheck(button);
    }
    for (int row = MeasurementGrid::kFixedRows; const std::vector<std::string>& cells : state.cells) {
        for (int column = 1; const std::string& cell : cells) {
            grid.SetCell(row, column++, FromUtf8(cell));
        }
        ++row;
    }
    if (state.edit) {
        editToResume = {state.edit->row, state.edit->column, FromUtf8(state.edit->text)};
    }
}

void KeepOpenEntries() noexcept {
    try {
        if (openWindow != nullptr) {
            openWindow->KeepEntries();
        }
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): the error that ends the program is told
    }
}

} // namespace orvel
