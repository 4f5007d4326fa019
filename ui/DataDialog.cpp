// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/DataDialog.h"

#include "ui/Menus.h"
#include "ui/NumericKeyFilter.h"
#include "ui/OnScreen.h"
#include "ui/TextEdge.h"
#include "ui/UncaughtError.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>

namespace orvel::ui {

namespace {

constexpr auto kKeepEntries = static_cast<QEvent::Type>(QEvent::User + 1);

// One line. A text that has no room in it is shortened in its middle; the tip has it whole.
class LineLabel : public QLabel {
public:
    explicit LineLabel(const char* name) {
        setObjectName(name);
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
        // Tips have no plain format: a name that looks like one is no markup.
        setToolTip(shown == text() ? QString() : "<qt>" + text().toHtmlEscaped() + "</qt>");
        QPainter painter(this);
        painter.drawText(rect(), static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), shown);
    }
};

} // namespace

DataDialog::DataDialog(QWidget* parent, const char* name, const QString& caption)
    : QDialog(parent), FormOf<DataView>(this) {
    setObjectName(name);
    setWindowTitle(caption);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
}

DataDialog::~DataDialog() {
    // The controls tell the logic of their end.
    delete pages;
}

DataPages& DataDialog::Begin(std::unique_ptr<DataWindow> ofWindow) {
    logic = std::move(ofWindow);
    pages = new DataPages(*logic);
    return *pages;
}

void DataDialog::Complete(const std::function<void()>& saveAs) {
    constexpr QSize kStartSize{850, 520};
    table = pages->Table();
    editor = pages->Editor();
    auto* layout = new QVBoxLayout(this);
    AddMenus(saveAs);
    layout->addWidget(pages);
    layout->addWidget(NewNotice());
    layout->addLayout(NewFootLine(saveAs));
    SetTabOrder();
    FilterNumericBoxes();
    WatchEntries();
    logic->Form_Load();
    resize(kStartSize.boundedTo(RoomFor(*this)));
}

void DataDialog::SetTabOrder() {
    const std::vector<QWidget*>& controls = pages->InTabOrder();
    for (std::size_t i = 1; i < controls.size(); ++i) {
        setTabOrder(controls[i - 1], controls[i]);
    }
    controls.front()->setFocus();
}

void DataDialog::FilterNumericBoxes() {
    for (const EntryField& entry : logic->Entries()) {
        if (entry.rule == EntryRule::Numeric) {
            FilterKeys(FindControl<QLineEdit>(*this, entry.control), DataWindow::NumberBox_KeyPress);
        }
    }
}

void DataDialog::WatchEntries() {
    const auto tell = [this] { Run([this] { logic->EntryMade(); }); };
    // As long as there are pages. The grid has no text of its own; its editor begins when it is left.
    connect(qApp, &QApplication::focusChanged, pages, [this, tell](const QWidget* left) {
        if (left != nullptr && left != table && isAncestorOf(left)) {
            tell();
        }
    });
    // What is dropped into a box changes it without the focus, and so does a screen reader.
    const auto watch = [this, tell](const auto* box, auto changed) {
        connect(box, changed, this, [box, tell] {
            if (!box->hasFocus()) {
                tell();
            }
        });
    };
    for (const QLineEdit* box : pages->findChildren<QLineEdit*>()) {
        if (box != editor) {
            watch(box, &QLineEdit::textChanged);
        }
    }
    for (const QPlainTextEdit* box : pages->findChildren<QPlainTextEdit*>()) {
        watch(box, &QPlainTextEdit::textChanged);
    }
    for (const QAbstractButton* button : pages->findChildren<QAbstractButton*>()) {
        connect(button, &QAbstractButton::toggled, this, tell);
    }
    for (const QComboBox* list : pages->findChildren<QComboBox*>()) {
        connect(list, &QComboBox::activated, this, tell);
    }
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

QWidget* DataDialog::NewNotice() {
    notice = new LineLabel("labelNotice");
    // It has its room before it comes: it must not push the cell out of sight that somebody types into.
    QSizePolicy policy = notice->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    notice->setSizePolicy(policy);
    notice->setFixedHeight(notice->fontMetrics().lineSpacing());
    notice->hide();
    return notice;
}

QLayout* DataDialog::NewFootLine(const std::function<void()>& saveAs) {
    auto* line = new QHBoxLayout;
    line->addWidget(new QLabel("Current File:"));
    auto* file = new LineLabel("labelFile");
    file->setAccessibleDescription("Current File:");
    line->addWidget(file, 1);
    if (saveAs) {
        line->addWidget(NewCommand("cmdBtnSaveAs", "Save &As", saveAs));
    }
    line->addWidget(NewCommand("cmdBtnCloseWithoutSaving", "Close &without Saving",
                               [this] { logic->cmdBtnCloseWithoutSaving_Click(); }));
    line->addWidget(
        NewCommand("cmdBtnExitAndSave", "&Save and Exit", [this] { logic->cmdBtnExitAndSave_Click(); }));
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

void DataDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        // When the window has its size.
        QMetaObject::invokeMethod(
            this, [this] { Run([this] { logic->Form_Show(); }); }, Qt::QueuedConnection);
    }
}

void DataDialog::customEvent(QEvent* event) {
    if (event->type() == kKeepEntries) {
        Run([this] { logic->KeepEntries(); });
    }
}

void DataDialog::PostKeepEntries() {
    // Behind the toolkit's own low priority, which repaints have.
    QCoreApplication::postEvent(this, new QEvent(kKeepEntries), Qt::LowEventPriority - 1);
}

void DataDialog::ShowNotice(const std::string& text) {
    notice->setText(QString::fromLocal8Bit(text.data(), static_cast<qsizetype>(text.size())));
    notice->setVisible(!text.empty());
}

void DataDialog::ShowGridPage() {
    for (int page = 0; page < pages->count(); ++page) {
        if (pages->widget(page)->isAncestorOf(table)) {
            pages->setCurrentIndex(page);
        }
    }
}

std::string DataDialog::TypedText(std::string_view control) const {
    return ControlText(*this, control);
}

void DataDialog::SetTypedText(std::string_view control, const std::string& text) {
    SetControlText(*this, control, text);
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

void DataDialog::SelectEditorText(std::size_t start, std::size_t length) {
    editor->setSelection(static_cast<int>(start), static_cast<int>(length));
}

void DataDialog::MoveEditor(const Area& area) {
    editor->setGeometry(area.left, area.top, area.width, area.height);
}

void DataDialog::ShowEditor() {
    editor->setFocusProxy(nullptr);
    editor->show();
    editor->raise();
}

void DataDialog::HideEditor() {
    // The focus that it has, or that a menu is about to give back to it, is the grid's.
    editor->setFocusProxy(table);
    editor->hide();
}

} // namespace orvel::ui
