// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Form.h"

#include "ui/UncaughtError.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <algorithm>

namespace orvel::ui {

namespace {

// The text that a box was given, and how its document holds it. As long as nobody edits it, it is the box's
// text, so that another program's line ends survive.
constexpr const char* kGivenText = "givenText";
constexpr const char* kGivenDocument = "givenDocument";

std::string LinesText(const QPlainTextEdit& box) {
    // Not the plain text, in which a no-break space is a blank.
    QString text = box.document()->toRawText();
    if (text == box.property(kGivenDocument).toString()) {
        return box.property(kGivenText).toByteArray().toStdString();
    }
    for (const QChar lineEnd : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)}) {
        text.replace(lineEnd, "\r\n");
    }
    return text.toStdString();
}

void SetLines(QPlainTextEdit& box, std::string_view text) {
    if (text.ends_with('\r')) {
        // Half a line end at the end of a cut text would grow into a whole one.
        text.remove_suffix(1);
    }
    const int position = box.textCursor().position();
    QString lines = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    lines.replace("\r\n", "\n").replace('\r', '\n');
    box.setProperty(kGivenText, QByteArray(text.data(), static_cast<qsizetype>(text.size())));
    box.setProperty(kGivenDocument, QString(lines).replace('\n', QChar(QChar::ParagraphSeparator)));
    box.setPlainText(lines);
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(std::min(position, static_cast<int>(lines.size())));
    box.setTextCursor(cursor);
}

} // namespace

std::string ControlText(const QWidget& window, std::string_view control) {
    if (const auto* box = FindControl<QLineEdit>(window, control)) {
        return box->text().toStdString();
    }
    if (const auto* lines = FindControl<QPlainTextEdit>(window, control)) {
        return LinesText(*lines);
    }
    return FindControl<QComboBox>(window, control)->currentText().toStdString();
}

void SetControlText(const QWidget& window, std::string_view control, const std::string& utf8) {
    const QString text = QString::fromStdString(utf8);
    if (auto* box = FindControl<QLineEdit>(window, control)) {
        const int cursor = box->cursorPosition();
        box->setText(text);
        box->setCursorPosition(cursor);
    } else if (auto* lines = FindControl<QPlainTextEdit>(window, control)) {
        SetLines(*lines, utf8);
    } else if (auto* list = FindControl<QComboBox>(window, control)) {
        // Also a text that the list lacks.
        list->setCurrentIndex(list->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
        list->setEditText(text);
    } else if (auto* label = FindControl<QLabel>(window, control)) {
        label->setText(text);
    }
}

QLabel* NewLabel(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void KeepOneLine(QLineEdit& box) {
    QObject::connect(&box, &QLineEdit::textEdited, &box, [&box](const QString& text) {
        static const QRegularExpression lineEnd(R"(\r\n|[\r\n\x{2028}\x{2029}])");
        QString line = text;
        line.replace(lineEnd, " ");
        if (line != text) {
            const int cursor = box.cursorPosition();
            box.setText(line);
            box.setCursorPosition(cursor);
        }
    });
}

QLineEdit* NewTextBox(const std::string& name, const QString& accessibleName) {
    auto* box = new QLineEdit;
    box->setObjectName(QString::fromStdString(name));
    box->setAccessibleName(accessibleName);
    KeepOneLine(*box);
    return box;
}

QLayout* NewSaveAndCancel(QDialog& dialog, const std::function<void()>& save) {
    constexpr int kGapAbove = 12;
    auto* saveButton = new QPushButton("&Save");
    saveButton->setObjectName("cmdBtnSave");
    saveButton->setDefault(true);
    QObject::connect(saveButton, &QPushButton::clicked, &dialog, [save] { Run(save); });
    auto* cancelButton = new QPushButton("&Cancel");
    cancelButton->setObjectName("cmdBtnCancel");
    QObject::connect(cancelButton, &QPushButton::clicked, &dialog, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, kGapAbove, 0, 0);
    buttons->addStretch();
    buttons->addWidget(saveButton);
    buttons->addWidget(cancelButton);
    return buttons;
}

} // namespace orvel::ui
