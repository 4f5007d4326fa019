// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace orvel {

// A rectangle, in logical pixels.
struct Area {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Area&) const = default;
};

// What the measurement grid asks of the two controls that show it: the grid gridTest, whose row 0 and column
// 0 are fixed, and the text box txtEdit that floats over one of its cells. Both lie in the same window, so
// the editor's place is the grid's place and the cell's in it.
class GridView {
public:
    virtual ~GridView() = default;

    // The text of a cell has changed.
    virtual void ShowCell(int row, int column) = 0;
    virtual void ShowCurrentCell(int row, int column) = 0;
    // Scrolls a cell that shows in part until it shows whole; leaves one that is out of sight there.
    virtual void ShowWholeCell(int row, int column) = 0;

    [[nodiscard]] virtual Area GridArea() const = 0;
    // Seen from the grid's corner. The width is negative when the cell is out of sight.
    [[nodiscard]] virtual Area CellArea(int row, int column) const = 0;
    [[nodiscard]] virtual int ColumnWidth(int column) const = 0;
    [[nodiscard]] virtual int HeaderHeight() const = 0;
    [[nodiscard]] virtual int RowHeight() const = 0;
    virtual void FocusGrid() = 0;

    [[nodiscard]] virtual std::string EditorText() const = 0;
    // The cursor stays as far as the new text reaches.
    virtual void SetEditorText(const std::string& text) = 0;
    virtual void SelectEditorText(std::size_t start, std::size_t length) = 0;
    virtual void MoveEditor(const Area& area) = 0;
    virtual void ShowEditor() = 0;
    virtual void HideEditor() = 0;
    virtual void FocusEditor() = 0;
};

} // namespace orvel
