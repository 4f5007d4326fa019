// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/MeasurementGrid.h"

#include "core/Masks.h"
#include "core/Messages.h"
#include "core/NumberText.h"
#include "core/Platform.h"
#include "core/RunTimeError.h"

#include <utility>

namespace orvel {

namespace {

constexpr int kBackspace = 8;
constexpr int kDropped = 0;

enum KeyCode {
    kEnter = 13,
    kEscape = 27,
    kUp = 38,
    kDown = 40,
    kInsert = 45,
    kDelete = 46,
    kF9 = 120,
    kF10 = 121,
};

bool IsDigit(int character) {
    return character >= '0' && character <= '9';
}

bool IsConfirmed(const char* question, const char* title) {
    return Ask(question, title, Buttons::YesNoCancel) == Reply::Yes;
}

// A text that is no number stays as it is.
std::string Formatted(const std::string& text, std::string_view mask) {
    try {
        return FormatMask(ToDouble(text), mask);
    } catch (const RunTimeError&) {
        // Trapped: it fails where it is to be a number.
        return text;
    }
}

} // namespace

MeasurementGrid::MeasurementGrid(GridView& ofWindow, const GridKind& ofTest, std::function<void()> onChange)
    : view(ofWindow), kind(ofTest), changed(std::move(onChange)), cells(kind.columns.size() * kRows),
      currentColumn(kind.volumeColumn) {
    for (int column = 0; const GridColumn& each : kind.columns) {
        cells[CellIndex(0, column++)] = each.caption;
    }
    for (int row = kFixedRows; row <= kLastRow; ++row) {
        cells[CellIndex(row, 0)] = std::to_string(row);
    }
}

std::size_t MeasurementGrid::CellIndex(int row, int column) const {
    if (row < 0 || row >= kRows || column < 0 || std::cmp_greater_equal(column, kind.columns.size())) {
        Raise(ErrorNumber::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(row) * kind.columns.size() + static_cast<std::size_t>(column);
}

const std::string& MeasurementGrid::Cell(int row, int column) const {
    return cells[CellIndex(row, column)];
}

void MeasurementGrid::SetCell(int row, int column, const std::string& text) {
    cells[CellIndex(row, column)] = text;
    view.ShowCell(row, column);
    changed();
}

void MeasurementGrid::MakeCurrent(int row, int column) {
    (void)CellIndex(row, column);
    if (row == currentRow && column == currentColumn) {
        return;
    }
    gridTest_LeaveCell();
    currentRow = row;
    currentColumn = column;
    view.ShowCurrentCell(row, column);
}

void MeasurementGrid::BeginEdit(int character) {
    if (character >= 0 && character <= ' ') {
        constexpr std::size_t kWholeText = 1000;
        view.SetEditorText(Cell(currentRow, currentColumn));
        view.SelectEditorText(0, kWholeText);
    } else if (character != '.' && !IsDigit(character)) {
        view.SetEditorText("0");
    } else {
        view.SetEditorText(std::string(1, static_cast<char>(character)));
        view.SelectEditorText(1, 0);
    }
    if (view.CellArea(currentRow, currentColumn).width < 0 || currentColumn != kind.volumeColumn) {
        return;
    }
    view.ShowWholeCell(currentRow, currentColumn);
    PlaceEditor();
    isEditing = true;
    view.ShowEditor();
    view.FocusEditor();
}

void MeasurementGrid::PlaceEditor() {
    const Area grid = view.GridArea();
    const Area cell = view.CellArea(currentRow, currentColumn);
    view.MoveEditor({grid.left + cell.left, grid.top + cell.top, cell.width, cell.height});
}

void MeasurementGrid::CommitEdit() {
    if (!isEditing || (currentColumn != kind.volumeColumn && !kind.commitsIntoAnyColumn)) {
        return;
    }
    SetCell(currentRow, currentColumn, Formatted(view.EditorText(), kind.commitMask));
    DropEdit();
}

void MeasurementGrid::ResumeEdit(const CellEdit& edit) {
    MakeCurrent(edit.row, edit.column);
    BeginEdit(' ');
    if (isEditing) {
        view.SetEditorText(edit.text);
        view.SelectEditorText(edit.text.size(), 0);
    } else {
        SetCell(edit.row, edit.column, edit.text);
    }
}

void MeasurementGrid::DropEdit() {
    if (isEditing) {
        isEditing = false;
        view.HideEditor();
    }
}

void MeasurementGrid::gridTest_GotFocus() {
    if (!isMovingRow) {
        CommitEdit();
    }
}

void MeasurementGrid::gridTest_LeaveCell() {
    gridTest_GotFocus();
}

void MeasurementGrid::gridTest_Scroll() {
    gridTest_GotFocus();
}

void MeasurementGrid::gridTest_KeyPress(int character) {
    BeginEdit(character);
}

void MeasurementGrid::gridTest_DblClick() {
    if (!isPointerOutside) {
        BeginEdit(' ');
    }
}

void MeasurementGrid::gridTest_MouseDown(int x, int y) {
    int width = 0;
    for (int column = 0; column < static_cast<int>(kind.columns.size()); ++column) {
        width += view.ColumnWidth(column);
    }
    isPointerOutside =
        x < view.ColumnWidth(0) || x > width || y < view.HeaderHeight() || y > view.RowHeight() * kRows;
}

void MeasurementGrid::gridTest_Resize() {
    if (!isEditing) {
        return;
    }
    if (view.CellArea(currentRow, currentColumn).width < 0) {
        CommitEdit();
        return;
    }
    // Scrolling takes the text.
    view.ShowWholeCell(currentRow, currentColumn);
    if (isEditing) {
        PlaceEditor();
    }
}

void MeasurementGrid::txtEdit_KeyDown(int keyCode) {
    switch (keyCode) {
    case kEnter:
        view.FocusGrid();
        break;
    case kEscape:
        // Hidden first: the focus then finds nothing to commit.
        DropEdit();
        view.FocusGrid();
        break;
    case kUp:
        view.FocusGrid();
        CurrentPlatform().eventPump->ProcessAllButInput();
        if (currentRow > kFixedRows) {
            MoveToRow(currentRow - 1);
        }
        break;
    case kDown:
        view.FocusGrid();
        CurrentPlatform().eventPump->ProcessAllButInput();
        if (currentRow < kLastRow) {
            MoveToRow(currentRow + 1);
        }
        break;
    case kInsert:
    case kF10:
        InsertCell();
        break;
    case kDelete:
    case kF9:
        DeleteCell();
        break;
    default:
        break;
    }
}

int MeasurementGrid::txtEdit_KeyPress(int character) {
    // kept: no decimal point, though the grid lets a text begin with one.
    return character == kBackspace || IsDigit(character) ? character : kDropped;
}

void MeasurementGrid::MoveToRow(int row) {
    isMovingRow = true;
    MakeCurrent(row, currentColumn);
    isMovingRow = false;
}

void MeasurementGrid::InsertCell() {
    if (!IsConfirmed("Would you like to insert a cell before this one?\rThis will shift cells below this "
                     "down.\rReally insert a new cell?\r",
                     "Insert Cell")) {
        return;
    }
    MakeCurrent(currentRow, kind.volumeColumn);
    // Its text would go into the cell that is emptied.
    DropEdit();
    for (int row = kLastRow; row > currentRow; --row) {
        SetCell(row, currentColumn, Cell(row - 1, currentColumn));
    }
    SetCell(currentRow, currentColumn, "");
    view.FocusGrid();
}

void MeasurementGrid::DeleteCell() {
    if (!IsConfirmed("Would you like to delete this cell?\rThis will shift cells below this up.\rReally "
                     "delete this cell?\r",
                     "Delete Cell")) {
        return;
    }
    MakeCurrent(currentRow, kind.volumeColumn);
    // kept: nothing is done to the last row, and the editor on it stays open; after a delete anywhere else
    // the row before it is current.
    if (currentRow == kLastRow) {
        return;
    }
    const bool wasEditing = isEditing;
    DropEdit();
    for (int row = currentRow; row < kLastRow; ++row) {
        SetCell(row, currentColumn, Cell(row + 1, currentColumn));
    }
    MakeCurrent(kLastRow - 1, currentColumn);
    if (wasEditing) {
        view.FocusGrid();
    }
}

} // namespace orvel
