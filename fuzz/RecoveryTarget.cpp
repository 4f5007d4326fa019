// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "fuzz/Fuzz.h"

#include "core/CodePage.h"
#include "core/RecordFiles.h"
#include "core/RunTimeError.h"
#include "entry/EntryState.h"
#include "tests/entry/DataWindowTest.h"

#include <string>

// What a data window restores. An input is the content of a recovery file.
namespace orvel::fuzz {

namespace {

// Opens the window of a new test beside which the file lies, wants everything back, saves.
template <class Window>
class Restoring {
public:
    explicit Restoring(std::string_view input) {
        UsePlatform({.messageBox = &surroundings,
                     .beeper = &beeper,
                     .clock = &clock,
                     .keySender = &surroundings,
                     .eventPump = &surroundings});
        Program().testKind = Kind::kName;
        Program().*Kind::kFile = folder / Kind::kFileName;
        FillDefaultSoilTable();
        testing::PutContents(folder / (std::string(Kind::kFileName) + ".recovery"), input);
        view.logsCells = false;
        for (const EntryField& entry : window.Entries()) {
            if (!entry.control.starts_with("chkBox")) {
                view.Add(entry.control);
            }
        }
        view.onChange = [this](std::string_view control) { window.TextBox_Change(control); };
        surroundings.replies = {Reply::Yes};
        window.Form_Load();
        window.Form_Show();
    }

    ~Restoring() {
        surroundings.replies.clear();
        (void)surroundings.Said();
    }

    Restoring(const Restoring&) = delete;
    Restoring& operator=(const Restoring&) = delete;

    [[nodiscard]] bool IsRestored() const { return surroundings.replies.empty(); }

    void RequireCells(const EntryState& state) {
        for (int row = 1; const std::vector<std::string>& cells : state.cells) {
            for (int column = 1; const std::string& cell : cells) {
                const bool isEdited = state.edit && state.edit->row == row && state.edit->column == column;
                Require(isEdited || window.Grid().Cell(row, column) == FromUtf8(cell), "a cell is restored");
                ++column;
            }
            ++row;
        }
    }

    // Whatever cannot be saved is kept.
    void Save() {
        try {
            window.mnuFileSave_Click();
        } catch (const RunTimeError&) {
            KeepOpenEntries();
            Require(!RecoveryFile(Program().*Kind::kFile).Read().empty(), "what can't be saved is kept");
            return;
        }
        Require(RecoveryFile(Program().*Kind::kFile).Read().empty(), "what is saved is not kept");
    }

private:
    using Kind = testing::KindOf<Window>;

    testing::TemporaryFolder folder;
    testing::Surroundings surroundings;
    testing::FakeBeeper beeper;
    testing::FakeClock clock;
    testing::FakeDataView view{surroundings};
    Window window{view, surroundings};
};

template <class Window>
void TryToRestore(std::string_view input, const std::optional<RecoveredEntries>& entries) {
    ResetProgram();
    Restoring<Window> restoring(input);
    const bool isOfKind = entries && entries->testKind == testing::KindOf<Window>::kName &&
                          entries->state.cells.front().size() == testing::KindOf<Window>::kColumns - 1;
    Require(restoring.IsRestored() == isOfKind, "what is whole and of the window's kind is offered");
    if (isOfKind) {
        restoring.RequireCells(entries->state);
        restoring.Save();
    }
}

} // namespace

bool Try(std::string_view input) {
    const auto entries = ReadRecoveryText(input);
    if (entries) {
        Require(ReadRecoveryText(RecoveryText(*entries)) == entries, "what is read is written as it was");
    }
    TryToRestore<frmCenterPivotData>(input, entries);
    TryToRestore<frmSolidSetData>(input, entries);
    return true;
}

} // namespace orvel::fuzz
