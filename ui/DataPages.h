// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "entry/DataWindow.h"
#include "ui/CellEditor.h"
#include "ui/MeasurementTable.h"

#include <QPushButton>
#include <QTabWidget>
#include <functional>
#include <initializer_list>
#include <vector>

namespace orvel::ui {

// A button that Enter does not press.
[[nodiscard]] QPushButton* NewCommand(const char* name, const char* caption,
                                      const std::function<void()>& event);

// One below the other.
[[nodiscard]] QWidget* NewColumn(const std::vector<QWidget*>& parts);
[[nodiscard]] QWidget* NewFrame(const char* caption, QWidget* content);
[[nodiscard]] QWidget* NewTips();

// A control with its label. Its name says what it is: "txtBox...Comments" a text box of many lines, another
// "txtBox..." one of one line, "combo..." a combo box, "chkBox..." and "optBtn..." buttons with their label.
struct LabelledControl {
    const char* control = nullptr;
    const char* label = nullptr;
    const char* accessibleName = nullptr; // where the label alone is not unique in its window
    const char* hint = nullptr;           // a line below the control
};

// The pages of a data window. Controls are gone through with Tab in the order in which they are made.
class DataPages : public QTabWidget {
public:
    // The logic must outlive the pages.
    explicit DataPages(DataWindow& ofWindow);

    using Controls = std::initializer_list<LabelledControl>;

    // A list in braces, so that its parts are made in the order of the text.
    struct Page {
        const char* caption;
        std::vector<QWidget*> columns; // side by side
        QWidget* below = nullptr;      // over the whole width
    };

    void AddPage(const Page& page);
    [[nodiscard]] QWidget* NewFields(Controls fields);
    // The same with the button cmdBtnAutoFill below them.
    [[nodiscard]] QWidget* NewFieldsToFill(Controls fields);
    // Controls in one line.
    [[nodiscard]] QWidget* NewLine(Controls fields);
    // The grid with its editor. Once.
    [[nodiscard]] QWidget* NewGrid();

    // The pages that both kinds have.
    void AddClientPage();
    void AddFieldPage(const char* labelOfAcres);
    void AddCommentsPage();

    [[nodiscard]] MeasurementTable* Table() const { return table; }

    [[nodiscard]] CellEditor* Editor() const { return editor; }

    [[nodiscard]] const std::vector<QWidget*>& InTabOrder() const { return controls; }

private:
    // Of the controls on the page that is shown.
    void FocusFirst();
    // A page that scrolls where the screen is too small for it.
    void AddScrolled(QWidget* page, const char* caption);
    [[nodiscard]] QWidget* NewControl(const LabelledControl& labelled);

    DataWindow& logic;
    std::vector<QWidget*> controls;
    MeasurementTable* table = nullptr;
    CellEditor* editor = nullptr;
};

} // namespace orvel::ui
