// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "entry/GridView.h"

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvel {

struct GridColumn {
    const char* caption;
    int width; // twips
};

// What the grids of the two kinds of test differ in.
struct GridKind {
    std::span<const GridColumn> columns;
    int volumeColumn;            // the only one that is edited by typing
    std::string_view commitMask; // of a committed volume
    // Whether an edit goes into whatever cell is current. Else one that finds another column current is not
    // ended at all: nothing happens and the editor stays. kept: the kinds differ.
    bool commitsIntoAnyColumn;
};

// A text in the editor that its cell has not taken yet.
struct CellEdit {
    int row = 0;
    int column = 0;
    std::string text;

    bool operator==(const CellEdit&) const = default;
};

// The measurements of a test as a table of cell texts, one of which is edited at a time: row 0 has the
// headers and column 0 the row numbers, rows 1 to 300 are the cups. A text that is being edited enters its
// cell when the grid gets the focus, is scrolled or is left for another cell.
//
// Events are named after their controls. A row or column outside the table raises Subscript out of range.
class MeasurementGrid {
public:
    static constexpr int kRows = 301;
    static constexpr int kFixedRows = 1;
    static constexpr int kLastRow = kRows - 1;

    // View and kind must outlive the grid. `onChange` is called after a cell got its text.
    MeasurementGrid(
        GridView& ofWindow, const GridKind& ofTest, std::function<void()> onChange = [] {});

    [[nodiscard]] const GridKind& Kind() const { return kind; }

    [[nodiscard]] const std::string& Cell(int row, int column) const;
    void SetCell(int row, int column, const std::string& text);

    [[nodiscard]] int CurrentRow() const { return currentRow; }

    [[nodiscard]] int CurrentColumn() const { return currentColumn; }

    // Leaves the current cell for another one.
    void MakeCurrent(int row, int column);

    // Whether the editor is open.
    [[nodiscard]] bool IsEditing() const { return isEditing; }

    // Opens the editor on the current cell. A digit or "." begins a new text; a control character or a blank
    // takes the cell's text, selected; any other character begins with "0".
    void BeginEdit(int character);
    void CommitEdit();
    // Opens the editor as it was once; a cell that is out of sight or can't be edited takes the text.
    void ResumeEdit(const CellEdit& edit);

    void gridTest_GotFocus();
    void gridTest_LeaveCell();
    void gridTest_Scroll();
    void gridTest_KeyPress(int character);
    void gridTest_DblClick();
    // A mouse event at that place, seen from the corner of the header row.
    void gridTest_MouseDown(int x, int y);
    // The editor follows its cell; one that is out of sight now takes the text.
    void gridTest_Resize();

    // Codes: Enter 13, Escape 27, Up 38, Down 40, Insert 45, Delete 46, F9 120, F10 121.
    void txtEdit_KeyDown(int keyCode);
    // The character to pass on to the editor; 0 when it is dropped.
    [[nodiscard]] static int txtEdit_KeyPress(int character);

private:
    [[nodiscard]] std::size_t CellIndex(int row, int column) const;
    void PlaceEditor();
    void DropEdit();
    void MoveToRow(int row);
    void InsertCell();
    void DeleteCell();

    GridView& view;
    const GridKind& kind;
    std::function<void()> changed;
    std::vector<std::string> cells; // row by row
    int currentRow = kFixedRows;
    int currentColumn;
    bool isEditing = false;
    // An arrow key of the editor is changing the row: what it left is committed already.
    bool isMovingRow = false;
    bool isPointerOutside = false;
};

} // namespace orvel
