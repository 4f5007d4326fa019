// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/DataDialog.h"

#include "ui/NumericKeyFilter.h"
#include "ui/TextEdge.h"
#include "ui/UncaughtError.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
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
    }

protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus()) {
            QComboBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

constexpr QSize kStartSize{850, 520};

bool IsButton(std::string_view control) {
    return control.starts_with("chkBox") || control.starts_with("optBtn");
}

} // namespace

DataDialog::DataDialog(QWidget* parent) : QDialog(parent), FormOf<DataView>(this) {
    setWindowFlag(Qt::WindowMaximizeButtonHint);
}

DataDialog::~DataDialog() {
    // The controls tell the logic of their end.
    delete pages;
}

void DataDialog::Begin(std::unique_ptr<DataWindow> ofWindow) {
    logic = std::move(ofWindow);
    pages = new QTabWidget;
    pages->setObjectName("tabPages");
}

void DataDialog::End(const std::function<void()>& saveAs) {
    auto* layout = new QVBoxLayout(this);
    AddMenus(saveAs);
    layout->addWidget(pages);
    layout->addLayout(NewFootLine(saveAs));
    for (std::size_t i = 1; i < controls.size(); ++i) {
        setTabOrder(controls[i - 1], controls[i]);
    }
    FilterNumericBoxes();
    controls.front()->setFocus();
    logic->Form_Load();
    resize(kStartSize.expandedTo(minimumSizeHint()));
}

std::function<void()> DataDialog::Event(void (DataWindow::*handler)()) {
    return [this, handler] { Run([this, handler] { ((*logic).*handler)(); }); };
}

void DataDialog::AddMenus(const std::function<void()>& saveAs) {
    std::vector<MenuItem> fileItems = {
        {"mnuFileSave", "&Save", QKeySequence::Save, Event(&DataWindow::mnuFileSave_Click)},
        {"mnuFileDiscard", "&Discard Changes", {}, Event(&DataWindow::mnuFileDiscard_Click)},
        {"mnuFileClose", "&Close Window", QKeySequence("Ctrl+W"), Event(&DataWindow::mnuFileClose_Click)},
    };
    if (saveAs) {
        fileItems.insert(fileItems.begin() + 1,
                         {"mnuFileSaveAs", "Save &As...", QKeySequence("Ctrl+Shift+S"), saveAs});
    }
    auto* bar = new QMenuBar(this);
    layout()->setMenuBar(bar);
    AddMenu(*bar, "mnuFile", "&File", fileItems);
    AddMenu(*bar, "mnuEdit", "&Edit",
            {
                {"mnuEditUndo", "&Undo", QKeySequence::Undo, Event(&DataWindow::mnuEditUndo_Click)},
                {"mnuEditCut", "Cu&t", QKeySequence::Cut, Event(&DataWindow::mnuEditCut_Click)},
                {"mnuEditCopy", "&Copy", QKeySequence::Copy, Event(&DataWindow::mnuEditCopy_Click)},
                {"mnueditPaste", "&Paste", QKeySequence::Paste, Event(&DataWindow::mnueditPaste_Click)},
            });
    AddMenu(*bar, "mnuHelp", "&Help",
            {
                {"mnuHelpInstructions", "&Instructions", QKeySequence::HelpContents,
                 Event(&DataWindow::mnuHelpInstructions_Click)},
                {"mnuHelpAbout", "&About", {}, Event(&DataWindow::mnuHelpAbout_Click)},
            });
}

void DataDialog::AddClientPage() {
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

void DataDialog::AddFieldPage(const char* labelOfAcres) {
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

void DataDialog::AddCommentsPage() {
    const LabelledControl comments = {"txtBoxOtherComments", "Comments / Recomendations:"};
    QWidget* box = NewControl(comments);
    auto* label = new QLabel(comments.label);
    label->setBuddy(box);
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(label);
    layout->addWidget(box, 1);
    pages->addTab(page, "Co&mments");
}

QPushButton* DataDialog::NewButton(const char* name, const char* caption, std::function<void()> event) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, std::move(event));
    controls.push_back(button);
    return button;
}

void DataDialog::AddPage(const Page& page) {
    constexpr int kGap = 24;
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
    pages->addTab(widget, page.caption);
}

QWidget* DataDialog::NewColumn(const std::vector<QWidget*>& parts) {
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : parts) {
        layout->addWidget(part);
    }
    layout->addStretch();
    return column;
}

QWidget* DataDialog::NewFields(Controls fields) {
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

QWidget* DataDialog::NewFieldsToFill(Controls fields) {
    QWidget* widget = NewFields(fields);
    QPushButton* button = NewButton("cmdBtnAutoFill", "Auto Fi&ll", Event(&DataWindow::cmdBtnAutoFill_Click));
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    static_cast<QFormLayout*>(widget->layout())->addRow(QString(), button);
    return widget;
}

QWidget* DataDialog::NewFrame(const char* caption, QWidget* content) {
    auto* frame = new QGroupBox(caption);
    frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(content);
    return frame;
}

QWidget* DataDialog::NewLine(Controls fields) {
    constexpr int kBoxWidth = 56;
    auto* widget = new QWidget;
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
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

QWidget* DataDialog::NewTips() {
    return NewFrame("Tips", NewColumn({new QLabel("To Insert a Cell press F10 or the Insert Key"),
                                       new QLabel("To Delete a Cell press F9 or the Delete Key")}));
}

QWidget* DataDialog::NewGrid() {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    editor = new CellEditor(logic->Grid(), page);
    table = new MeasurementTable(logic->Grid(), editor->sizeHint().height(), page);
    editor->setFont(table->font());
    editor->TurnWithWheel(table->verticalScrollBar());
    layout->addWidget(table);
    page->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    // Leaving the editor with Tab goes to the grid, which takes the text.
    controls.push_back(editor);
    controls.push_back(table);
    return page;
}

QWidget* DataDialog::NewControl(const LabelledControl& labelled) {
    const std::string name = labelled.control;
    const auto changed = [this, name] { Run([&] { logic->TextBox_Change(name); }); };
    QWidget* control = nullptr;
    if (name.starts_with("chkBox")) {
        control = new QCheckBox(labelled.label);
    } else if (name.starts_with("optBtn")) {
        control = new QRadioButton(labelled.label);
    } else if (name.starts_with("combo") || name.starts_with("Combo")) {
        auto* list = new EntryList;
        // A list's own name is the text it shows.
        list->lineEdit()->setAccessibleName(labelled.label);
        control = list;
    } else if (name.ends_with("Comments")) {
        constexpr int kLeastLines = 3;
        auto* box = new QPlainTextEdit;
        box->setTabChangesFocus(true);
        box->setMinimumHeight(box->fontMetrics().lineSpacing() * kLeastLines + 2 * box->frameWidth());
        connect(box, &QPlainTextEdit::textChanged, this, changed);
        control = box;
    } else {
        QLineEdit* box = NewTextLine(name);
        connect(box, &QLineEdit::textChanged, this, changed);
        control = box;
    }
    control->setObjectName(labelled.control);
    control->setAccessibleName(labelled.accessibleName == nullptr ? labelled.label : labelled.accessibleName);
    controls.push_back(control);
    return control;
}

QLineEdit* DataDialog::NewTextLine(std::string_view name) const {
    // A number or a date needs no long box.
    constexpr std::size_t kMostCharacters = 25;
    constexpr int kShortWidth = 120;
    auto* box = new QLineEdit;
    if (logic->WidthOf(name) <= kMostCharacters) {
        box->setMaximumWidth(kShortWidth);
    }
    return box;
}

void DataDialog::FilterNumericBoxes() {
    for (const EntryField& entry : logic->Entries()) {
        if (entry.rule == EntryRule::Numeric) {
            FilterKeys(FindControl<QLineEdit>(*this, entry.control), DataWindow::NumberBox_KeyPress);
        }
    }
}

QLayout* DataDialog::NewFootLine(const std::function<void()>& saveAs) {
    auto* line = new QHBoxLayout;
    line->addWidget(new QLabel("Current File:"));
    QLabel* file = NewLabel("labelFile");
    file->setAccessibleName("Current File:");
    // A long name does not widen the window.
    file->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    line->addWidget(file, 1);
    if (saveAs) {
        line->addWidget(NewButton("cmdBtnSaveAs", "Save &As", saveAs));
    }
    line->addWidget(NewButton("cmdBtnCloseWithoutSaving", "Close &without Saving",
                              Event(&DataWindow::cmdBtnCloseWithoutSaving_Click)));
    line->addWidget(
        NewButton("cmdBtnExitAndSave", "&Save and Exit", Event(&DataWindow::cmdBtnExitAndSave_Click)));
    return line;
}

void DataDialog::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key != Qt::Key_Escape && key != Qt::Key_Return && key != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
    }
}

void DataDialog::mousePressEvent(QMouseEvent* /*event*/) {
    Run([this] { logic->Form_Click(); });
}

void DataDialog::closeEvent(QCloseEvent* event) {
    event->ignore();
    Run([this] { logic->mnuFileClose_Click(); });
}

void DataDialog::SetList(std::string_view control, const std::vector<std::string>& entries) {
    auto* list = FindControl<QComboBox>(*this, control);
    list->clear();
    for (const std::string& entry : entries) {
        list->addItem(ToQt(entry));
    }
}

std::optional<bool> DataDialog::IsChecked(std::string_view control) const {
    if (const auto* box = FindControl<QCheckBox>(*this, control)) {
        const Qt::CheckState state = box->checkState();
        return state == Qt::PartiallyChecked ? std::nullopt : std::optional(state == Qt::Checked);
    }
    return FindControl<QRadioButton>(*this, control)->isChecked();
}

void DataDialog::SetChecked(std::string_view control, bool isChecked) {
    auto* button = FindControl<QAbstractButton>(*this, control);
    // Of option buttons that exclude each other, also the last one lets itself be cleared.
    const bool isExclusive = button->autoExclusive();
    button->setAutoExclusive(false);
    button->setChecked(isChecked);
    button->setAutoExclusive(isExclusive);
}

Area DataDialog::GridArea() const {
    const QRect area = table->geometry();
    return {area.x(), area.y(), area.width(), area.height()};
}

int DataDialog::HeaderHeight() const {
    return table->horizontalHeader()->height();
}

int DataDialog::RowHeight() const {
    return table->verticalHeader()->defaultSectionSize();
}

std::string DataDialog::EditorText() const {
    return FromQt(editor->text());
}

void DataDialog::SetEditorText(const std::string& text) {
    const int cursor = editor->cursorPosition();
    const int start = editor->hasSelectedText() ? editor->selectionStart() : cursor;
    const int length = editor->selectionLength();
    editor->setText(ToQt(text));
    editor->setSelection(std::min(start, static_cast<int>(editor->text().size())), length);
}

void DataDialog::SelectEditorText(std::size_t start, std::size_t length) {
    editor->setSelection(static_cast<int>(start), static_cast<int>(length));
}

void DataDialog::MoveEditor(const Area& area) {
    editor->setGeometry(area.left, area.top, area.width, area.height);
}

void DataDialog::ShowEditor() {
    editor->show();
    editor->raise();
}

void DataDialog::HideEditor() {
    // Else the focus would go to whatever comes next.
    if (editor->hasFocus()) {
        table->setFocus();
    }
    editor->hide();
}

} // namespace orvel::ui
