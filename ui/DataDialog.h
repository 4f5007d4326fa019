// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "entry/DataWindow.h"
#include "ui/CellEditor.h"
#include "ui/Form.h"
#include "ui/MeasurementTable.h"
#include "ui/Menus.h"

#include <QDialog>
#include <QFormLayout>
#include <QPushButton>
#include <QTabWidget>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace orvel::ui {

// A control with its label. Its name says what it is: "txtBox...Comments" a text box of many lines, another
// "txtBox..." one of one line, "combo..." a combo box, "chkBox..." and "optBtn..." buttons with their label.
struct LabelledControl {
    const char* control;
    const char* label;
    const char* accessibleName = nullptr; // where the label alone is not unique in its window
    const char* hint = nullptr;           // a line below the control
};

// The part of a data window that both kinds of test share. It asks by itself what closing it asks; neither
// Escape nor Enter closes it or presses a button, since both are working keys of the grid.
class DataDialog : public QDialog, protected FormOf<DataView> {
protected:
    using Controls = std::initializer_list<LabelledControl>;

    explicit DataDialog(QWidget* parent);
    ~DataDialog() override;
    DataDialog(const DataDialog&) = delete;
    DataDialog& operator=(const DataDialog&) = delete;

    // What the logic sees of the window.
    [[nodiscard]] DataView& AsView() { return *this; }

    // To be called before the pages are added and behind them. A window that can't save as another file
    // passes nothing for that.
    void Begin(std::unique_ptr<DataWindow> ofWindow);
    void End(const std::function<void()>& saveAs);

    // The pages that both kinds have.
    void AddClientPage();
    void AddFieldPage(const char* labelOfAcres);
    void AddCommentsPage();

    // A list in braces, so that its controls are made, and gone through with Tab, in the order of the text.
    struct Page {
        const char* caption;
        std::vector<QWidget*> columns; // side by side
        QWidget* below = nullptr;      // over the whole width
    };

    void AddPage(const Page& page);
    [[nodiscard]] QWidget* NewColumn(const std::vector<QWidget*>& parts);
    [[nodiscard]] QWidget* NewFields(Controls controls);
    // The same with the button cmdBtnAutoFill below them.
    [[nodiscard]] QWidget* NewFieldsToFill(Controls controls);
    [[nodiscard]] QWidget* NewFrame(const char* caption, QWidget* content);
    // Controls in one line.
    [[nodiscard]] QWidget* NewLine(Controls controls);
    [[nodiscard]] QWidget* NewTips();
    // The grid with its editor. Once.
    [[nodiscard]] QWidget* NewGrid();

    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    [[nodiscard]] QPushButton* NewButton(const char* name, const char* caption, std::function<void()> event);
    [[nodiscard]] QLineEdit* NewTextLine(std::string_view name) const;
    [[nodiscard]] QWidget* NewControl(const LabelledControl& control);
    // An event of the logic that both kinds have.
    std::function<void()> Event(void (DataWindow::*handler)());
    void AddMenus(const std::function<void()>& saveAs);
    QLayout* NewFootLine(const std::function<void()>& saveAs);
    void FilterNumericBoxes();

    void Unload() override { accept(); }

    void SetList(std::string_view control, const std::vector<std::string>& entries) override;
    [[nodiscard]] std::optional<bool> IsChecked(std::string_view control) const override;
    void SetChecked(std::string_view control, bool isChecked) override;

    void ShowCell(int row, int column) override { table->ShowCell(row, column); }
    void ShowCurrentCell(int row, int column) override { table->ShowCurrentCell(row, column); }
    void ShowWholeCell(int row, int column) override { table->ShowWholeCell(row, column); }
    [[nodiscard]] Area GridArea() const override;
    [[nodiscard]] Area CellArea(int row, int column) const override { return table->CellArea(row, column); }
    [[nodiscard]] int ColumnWidth(int column) const override { return table->columnWidth(column); }
    [[nodiscard]] int HeaderHeight() const override;
    [[nodiscard]] int RowHeight() const override;
    void FocusGrid() override { table->setFocus(); }
    [[nodiscard]] std::string EditorText() const override;
    void SetEditorText(const std::string& text) override;
    void SelectEditorText(std::size_t start, std::size_t length) override;
    void MoveEditor(const Area& area) override;
    void ShowEditor() override;
    void HideEditor() override;
    void FocusEditor() override { editor->setFocus(); }

    std::unique_ptr<DataWindow> logic;
    QTabWidget* pages = nullptr;
    MeasurementTable* table = nullptr;
    CellEditor* editor = nullptr;
    // In the order in which Tab goes through them.
    std::vector<QWidget*> controls;
};

} // namespace orvel::ui
