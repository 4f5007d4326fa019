// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/ProgramWindows.h"
#include "entry/DataView.h"
#include "entry/EntryFields.h"
#include "entry/EntryRecovery.h"
#include "entry/EntryState.h"
#include "entry/MeasurementGrid.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace orvel {

struct ComboList {
    std::string_view control;
    std::span<const char* const> entries; // UTF-8
};

// What the data windows of the two kinds of test differ in, as far as tables can say it.
struct DataWindowKind {
    std::span<const EntryField> entries; // in the order in which they are stored
    std::span<const Field> record;
    std::span<const ComboList> lists; // in the order in which they are filled
    std::span<const std::string_view> optionButtons;
    const GridKind* grid;
};

// The window in which a test is entered: what both kinds share. It works on a copy of the program's record,
// which Save stores the controls into and puts back. A text being edited in the grid is not in the record
// until the grid has taken it.
//
// What is typed is safe before it is saved, too: a recovery file has the texts of all controls and cells, the
// open editor's included, as they were when the user last finished one; an untouched window writes none. The
// file goes when the test is saved and when the user drops what was typed; one that an earlier run left
// behind is offered when the window opens.
//
// Where a text is to become a number, one that is none raises RunTimeError; nothing traps it under Save and
// Auto Fill, so that the program ends.
class DataWindow {
public:
    virtual ~DataWindow();
    DataWindow(const DataWindow&) = delete;
    DataWindow& operator=(const DataWindow&) = delete;

    [[nodiscard]] MeasurementGrid& Grid() { return grid; }

    [[nodiscard]] std::span<const EntryField> Entries() const { return kind.entries; }

    // The characters that the control's field holds.
    [[nodiscard]] std::size_t WidthOf(std::string_view control) const { return form.WidthOf(control); }

    // Asks about what an earlier run left behind.
    void Form_Load();
    // On the screen for the first time.
    void Form_Show();
    // On the window's background.
    void Form_Click();

    void TextBox_Change(std::string_view control);
    // The user has finished an entry: left a control, checked a box, chosen from a list.
    void EntryMade();
    // Brings the recovery file up to date. A failure is told in the window.
    void KeepEntries();
    // The key to pass on to a numeric text box; 0 when it is dropped.
    [[nodiscard]] static int NumberBox_KeyPress(int key);

    void mnuFileSave_Click();
    void mnuFileDiscard_Click();
    // Also what the title bar does.
    void mnuFileClose_Click();

    void mnuEditUndo_Click();
    void mnuEditCut_Click();
    void mnuEditCopy_Click();
    void mnueditPaste_Click();

    void mnuHelpInstructions_Click();
    void mnuHelpAbout_Click();

    void cmdBtnExitAndSave_Click();
    void cmdBtnCloseWithoutSaving_Click();
    virtual void cmdBtnAutoFill_Click() = 0;

protected:
    // All must outlive the window.
    DataWindow(DataView& ofWindow, ProgramWindows& ofProgram, const DataWindowKind& ofTest);

    virtual void FillLists();
    // The program's record and the copy of it that is edited.
    virtual void TakeMainRecord() = 0;
    virtual void PutMainRecord() = 0;
    [[nodiscard]] virtual std::span<std::byte> EditCopy() = 0;
    // What is no text and no flag: the measurements above all.
    virtual void LoadRest() = 0;
    virtual void StoreRest() = 0;
    // After Save has written the file.
    virtual void CheckSavedTest() {}

    // Stores the controls into the copy and the copy into the program's record.
    void Store();
    // After the test was written; nothing is left to recover.
    void NoteSaved();
    void ShowFileName();
    void StoreText(std::string_view control) { form.StoreText(control, EditCopy()); }

    [[nodiscard]] DataView& View() { return view; }

private:
    // False when the file could not be written, which the user was told.
    bool Save();
    void Close();

    [[nodiscard]] EntryState Capture() const;
    void Restore(const EntryState& state);

    DataView& view;
    ProgramWindows& windows;
    const DataWindowKind& kind;
    EntryForm form;
    MeasurementGrid grid;
    std::optional<EntryRecovery> recovery; // while the window shows the test
    std::optional<CellEdit> editToResume;  // until the window is on the screen
    bool isKeepPosted = false;
    bool isFailureShown = false;
};

// Brings the recovery file of the open data window, if there is one, up to date: the program is about to end.
void KeepOpenEntries() noexcept;

} // namespace orvel
