// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/entry/DataWindowTest.h"

#include "core/CodePage.h"

#include <sstream>

namespace orvel::testing {

namespace {

void Happen(const std::function<void()>& event) {
    if (event) {
        event();
    }
}

} // namespace

void FakeDataView::SetText(std::string_view control, const std::string& text) {
    if (logsControls) {
        surroundings.Note("text " + std::string{control});
    }
    form.SetText(control, text);
    typedTexts.erase(std::string{control});
    if (onChange) {
        onChange(control);
    }
}

void FakeDataView::SetList(std::string_view control, const std::vector<std::string>& entries) {
    if (logsControls) {
        surroundings.Note("list " + std::string{control});
    }
    lists[std::string{control}] = entries;
}

std::optional<bool> FakeDataView::IsChecked(std::string_view control) const {
    const auto found = checks.find(control);
    if (found == checks.end()) {
        ADD_FAILURE() << "no control " << control;
        return {};
    }
    return found->second;
}

void FakeDataView::SetChecked(std::string_view control, bool isChecked) {
    if (logsControls) {
        surroundings.Note("check " + std::string{control});
    }
    checks[std::string{control}] = isChecked;
}

std::string FakeDataView::TypedText(std::string_view control) const {
    const auto typed = typedTexts.find(control);
    return typed == typedTexts.end() ? ToUtf8(Text(control)) : typed->second;
}

void FakeDataView::SetTypedText(std::string_view control, const std::string& text) {
    SetText(control, FromUtf8(text));
    typedTexts[std::string{control}] = text;
}

void FakeDataView::ShowCell(int row, int column) {
    if (logsCells) {
        NoteCell("cell", row, column);
    }
}

void FakeDataView::ShowCurrentCell(int row, int column) {
    NoteCell("current", row, column);
    Happen(onShowCurrentCell);
}

void FakeDataView::ShowWholeCell(int row, int column) {
    NoteCell("whole", row, column);
    scrolled = -5;
    Happen(onShowWholeCell);
}

void FakeDataView::FocusGrid() {
    surroundings.Note("focus gridTest");
    Happen(onGridFocus);
}

void FakeDataView::HideEditor() {
    surroundings.Note("hide editor");
    Happen(onHideEditor);
}

void FakeDataView::SetEditorText(const std::string& text) {
    surroundings.Note("editor [" + text + "]");
    editor = text;
}

void FakeDataView::SelectEditorText(std::size_t start, std::size_t length) {
    surroundings.Note("select " + std::to_string(start) + "+" + std::to_string(length));
}

void FakeDataView::MoveEditor(const Area& area) {
    std::ostringstream line;
    line << "move editor " << area.left << "," << area.top << " " << area.width << "x" << area.height;
    surroundings.Note(line.str());
}

void FakeDataView::NoteCell(const char* what, int row, int column) {
    surroundings.Note(std::string{what} + " " + std::to_string(row) + "," + std::to_string(column));
}

} // namespace orvel::testing
