// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/DataPages.h"

#include "ui/Form.h"
#include "ui/ScrollingArea.h"
#include "ui/UncaughtError.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>

namespace orvel::ui {

namespace {

// Takes any text, completes nothing, and turns with the wheel only where the user is.
class EntryList : public QComboBox {
public:
    EntryList() {
        setEditable(true);
        setInsertPolicy(NoInsert);
        setCompleter(nullptr);
        setFocusPolicy(Qt::StrongFocus);
        setSizeAdjustPolicy(AdjustToContents);
    }

    // The opened list is no wider than the box.
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus()) {
            QComboBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

class TextLines : public QPlainTextEdit {
public:
    explicit TextLines(std::size_t mostCharacters) : limit(static_cast<qsizetype>(mostCharacters)) {}

protected:
    void insertFromMimeData(const QMimeData* source) override {
        // The toolkit can't paste from an empty clipboard.
        if (canInsertFromMimeData(source)) {
            // One more draws the message and is cut; the toolkit would take a minute to wrap a word of a
            // megabyte. A character may be two units of its text.
            QMimeData part;
            part.setText(source->text().left(2 * (limit + 1)));
            QPlainTextEdit::insertFromMimeData(&part);
        }
    }

private:
    qsizetype limit;
};

QPlainTextEdit* NewTextLines(std::size_t mostCharacters) {
    constexpr int kLeastLines = 3;
    auto* box = new TextLines(mostCharacters);
    box->setTabChangesFocus(true);
    box->setMinimumHeight(box->fontMetrics().lineSpacing() * kLeastLines + 2 * box->frameWidth());
    return box;
}

QLineEdit* NewTextLine(std::size_t mostCharacters) {
    // A number or a date needs no long box.
    constexpr std::size_t kFewCharacters = 25;
    constexpr int kShortWidth = 120;
    auto* box = new QLineEdit;
    if (mostCharacters <= kFewCharacters) {
        box->setMaximumWidth(kShortWidth);
    }
    return box;
}

bool IsButton(std::string_view control) {
    return control.starts_with("chkBox") || control.starts_with("optBtn");
}

} // namespace

QPushButton* NewCommand(const char* name, const char* caption, const std::function<void()>& event) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button, [event] { Run(event); });
    return button;
}

QWidget* NewColumn(const std::vector<QWidget*>& parts) {
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : parts) {
        layout->addWidget(part);
    }
    layout->addStretch();
    return column;
}

QWidget* NewFrame(const char* caption, QWidget* content) {
    auto* frame = new QGroupBox(caption);
    frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(content);
    return frame;
}

QWidget* NewTips() {
    return NewFrame("Tips", NewColumn({new QLabel("To Insert a Cell press F10 or the Insert Key"),
                                       new QLabel("To Delete a Cell press F9 or the Delete Key")}));
}

DataPages::DataPages(DataWindow& ofWindow) : logic(ofWindow) {
    setObjectName("tabPages");
    connect(this, &QTabWidget::currentChanged, this, [this] {
        const QWidget* withKeys = window()->focusWidget();
        if (qobject_cast<const QMenuBar*>(withKeys) != nullptr) {
            // It gives them back to where they were, be that hidden by now.
            tabBar()->setFocus();
        } else if (withKeys != nullptr && !isAncestorOf(withKeys)) {
            // Else what is typed into the page would press a button below it.
            FocusFirst();
        }
    });
}

void DataPages::FocusFirst() {
    const auto first = std::ranges::find_if(
        controls, [this](const QWidget* control) { return currentWidget()->isAncestorOf(control); });
    if (first != controls.end()) {
        (*first)->setFocus(Qt::TabFocusReason);
    }
}

void DataPages::AddClientPage() {
    AddPage({"&Client Information",
             {NewColumn({NewFields({
                  {"txtBoxClientName", "Client Name:"},
                  {"txtBoxFarmName", "Farm Name:"},
                  {"txtBoxOperatorName", "Farm Operator:"},
                  {"txtBoxClientPhone", "Phone:"},
                  {"txtBoxEMail", "E-Mail:"},
              })}),
              NewColumn({NewFields({
                  {"txtBoxClientAddress", "Address:"},
                  {"txtBoxClientCity", "City:"},
                  {"txtBoxClientCounty", "County:"},
                  {"txtBoxClientState", "State:"},
                  {"txtBoxClientZip", "Zip Code:"},
              })})}});
}

void DataPages::AddFieldPage(const char* labelOfAcres) {
    AddPage({"F&ield Information",
             {NewColumn({NewFields({
                  {"txtBoxFieldName", "Field Name or Identifier:"},
                  {"txtBoxTotalAcres", labelOfAcres},
                  {"txtBoxCrops", "Predominate Crops:", nullptr, "Example: Corn-Cotton-Peanuts-Tobacco"},
              })}),
              NewColumn({NewFields({
                  {"comboSoilType", "Soil Type:"},
                  {"comboSoilSlope", "Soil Slope:"},
                  {"ComboCommonTillage", "Common Tillage:"},
              })})},
             NewFields({{"txtBoxFieldComments", "Comments:", "Field Comments:"}})});
}

void DataPages::AddCommentsPage() {
    const LabelledControl comments = {"txtBoxOtherComments", "Comments / Recomendations:"};
    QWidget* box = NewControl(comments);
    auto* label = new QLabel(comments.label);
    label->setBuddy(box);
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(label);
    layout->addWidget(box, 1);
    AddScrolled(page, "Co&mments");
}

void DataPages::AddScrolled(QWidget* page, const char* caption) {
    addTab(new ScrollingArea(page), caption);
}

void DataPages::AddPage(const Page& page) {
    constexpr int kGap = 16;
    auto* widget = new QWidget;
    auto* layout = new QVBoxLayout(widget);
    auto* line = new QHBoxLayout;
    line->setSpacing(kGap);
    for (QWidget* column : page.columns) {
        const bool isFixed = column->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
        line->addWidget(column, isFixed ? 0 : 1);
    }
    layout->addLayout(line, page.below == nullptr ? 1 : 0);
    if (page.below != nullptr) {
        layout->addWidget(page.below, 1);
    }
    AddScrolled(widget, page.caption);
}

QWidget* DataPages::NewFields(Controls fields) {
    auto* widget = new QWidget;
    auto* layout = new QFormLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (const LabelledControl& each : fields) {
        QWidget* control = NewControl(each);
        if (IsButton(each.control)) {
            layout->addRow(QString(), control);
        } else {
            layout->addRow(each.label, control);
        }
        if (each.hint != nullptr) {
            layout->addRow(QString(), new QLabel(each.hint));
        }
    }
    return widget;
}

QWidget* DataPages::NewFieldsToFill(Controls fields) {
    QWidget* widget = NewFields(fields);
    QPushButton* button =
        NewCommand("cmdBtnAutoFill", "Auto Fi&ll", [this] { logic.cmdBtnAutoFill_Click(); });
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    controls.push_back(button);
    static_cast<QFormLayout*>(widget->layout())->addRow(QString(), button);
    return widget;
}

QWidget* DataPages::NewLine(Controls fields) {
    constexpr int kBoxWidth = 46;
    constexpr int kGap = 4;
    auto* widget = new QWidget;
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    for (const LabelledControl& each : fields) {
        QWidget* control = NewControl(each);
        control->setFixedWidth(kBoxWidth);
        auto* label = new QLabel(each.label);
        label->setBuddy(control);
        layout->addWidget(label);
        layout->addWidget(control);
    }
    layout->addStretch();
    return widget;
}

QWidget* DataPages::NewGrid() {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    editor = new CellEditor(logic.Grid(), page);
    table = new MeasurementTable(logic.Grid(), editor->sizeHint().height(), page);
    editor->setFont(table->font());
    editor->TurnWithWheel(table->verticalScrollBar());
    // A page that scrolls follows the cell that is typed into.
    connect(table->selectionModel(), &QItemSelectionModel::currentChanged, table, [this] {
        if (table->hasFocus() || editor->hasFocus()) {
            dynamic_cast<ScrollingArea&>(*currentWidget()).Follow(*table);
        }
    });
    layout->addWidget(table);
    page->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    // Leaving the editor with Tab goes to the grid, which takes the text.
    controls.push_back(editor);
    controls.push_back(table);
    return page;
}

QWidget* DataPages::NewControl(const LabelledControl& labelled) {
    const std::string name = labelled.control;
    const auto changed = [this, name] { Run([&] { logic.TextBox_Change(name); }); };
    QWidget* control = nullptr;
    if (name.starts_with("chkBox")) {
        control = new QCheckBox(labelled.label);
    } else if (name.starts_with("optBtn")) {
        control = new QRadioButton(labelled.label);
    } else if (name.starts_with("combo") || name.starts_with("Combo")) {
        auto* list = new EntryList;
        // A list's own name is the text it shows.
        list->lineEdit()->setAccessibleName(labelled.label);
        list->view()->setAccessibleName(labelled.label);
        KeepOneLine(*list->lineEdit());
        control = list;
    } else if (name.ends_with("Comments")) {
        auto* box = NewTextLines(logic.WidthOf(name));
        connect(box, &QPlainTextEdit::textChanged, this, changed);
        control = box;
    } else {
        QLineEdit* box = NewTextLine(logic.WidthOf(name));
        KeepOneLine(*box);
        connect(box, &QLineEdit::textChanged, this, changed);
        control = box;
    }
    control->setObjectName(labelled.control);
    control->setAccessibleName(labelled.accessibleName == nullptr ? labelled.label : labelled.accessibleName);
    controls.push_back(control);
    return control;
}

} // namespace orvel::ui
