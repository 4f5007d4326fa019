// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "entry/DataWindow.h"
#include "ui/DataPages.h"
#include "ui/Form.h"

#include <QDialog>
#include <QLayout>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvel::ui {

// The part of a data window that both kinds of test share. It asks by itself what closing it asks; neither
// Escape nor Enter closes it or presses a button, since both are working keys of the grid.
class DataDialog : public QDialog, protected FormOf<DataView> {
public:
    DataDialog(const DataDialog&) = delete;
    DataDialog& operator=(const DataDialog&) = delete;
    ~DataDialog() override;

protected:
    DataDialog(QWidget* parent, const char* name, const QString& caption);

    // What the logic sees of the window.
    [[nodiscard]] DataView& AsView() { return *this; }

    // Takes the logic and gives its pages, still empty, to be filled before the window is completed. A window
    // that can't save as another file passes nothing for that.
    [[nodiscard]] DataPages& Begin(std::unique_ptr<DataWindow> ofWindow);
    void Complete(const std::function<void()>& saveAs);

    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void customEvent(QEvent* event) override;

private:
    // An event of the logic that both kinds have.
    std::function<void()> Event(void (DataWindow::*handler)());
    void AddMenus(const std::function<void()>& saveAs);
    QWidget* NewNotice();
    QLayout* NewFootLine(const std::function<void()>& saveAs);
    void FilterNumericBoxes();
    // Tells the logic of every entry that the user has finished.
    void WatchEntries();
    void SetTabOrder();

    void Unload() override { accept(); }

    void SetList(std::string_view control, const std::vector<std::string>& entries) override;
    [[nodiscard]] std::optional<bool> IsChecked(std::string_view control) const override;
    void SetChecked(std::string_view control, bool isChecked) override;
    [[nodiscard]] std::string TypedText(std::string_view control) const override;
    void SetTypedText(std::string_view control, const std::string& text) override;
    void PostKeepEntries() override;
    void ShowNotice(const std::string& text) override;
    void ShowGridPage() override;

    void ShowCell(int row, int column) override { table->ShowCell(row, column); }
    void ShowCurrentCell(int row, int column) override { table->ShowCurrentCell(row, column); }
    void ShowWholeCell(int row, int column) override { table->ShowWholeCell(row, column); }
    [[nodiscard]] Area GridArea() const override;
    [[nodiscard]] Area CellArea(int row, int column) const override { return table->CellArea(row, column); }
    [[nodiscard]] int ColumnWidth(int column) const override { return table->columnWidth(column); }
    [[nodiscard]] int HeaderHeight() const override;
    [[nodiscard]] int RowHeight() const override;
    void FocusGrid() override { table->setFocus(); }
    [[nodiscard]] std::string EditorText() const override { return Text("txtEdit"); }
    void SetEditorText(const std::string& text) override { SetText("txtEdit", text); }
    void SelectEditorText(std::size_t start, std::size_t length) override;
    void MoveEditor(const Area& area) override;
    void ShowEditor() override;
    void HideEditor() override;
    void FocusEditor() override { editor->setFocus(); }

    std::unique_ptr<DataWindow> logic;
    DataPages* pages = nullptr;
    MeasurementTable* table = nullptr;
    CellEditor* editor = nullptr;
    QLabel* notice = nullptr;
};

} // namespace orvel::ui
