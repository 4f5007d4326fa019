// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Form.h"

#include "ui/TextEdge.h"
#include "ui/UncaughtError.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace orvel::ui {

namespace {

template <class Control>
Control* Find(const QWidget* window, std::string_view name) {
    return window->findChild<Control*>(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
}

} // namespace

std::string Form::Text(std::string_view control) const {
    const auto* box = Find<QLineEdit>(widget, control);
    return FromQt(box->text());
}

void Form::SetText(std::string_view control, const std::string& text) {
    if (auto* box = Find<QLineEdit>(widget, control)) {
        // The cursor stays where the user types.
        const int cursor = box->cursorPosition();
        box->setText(ToQt(text));
        box->setCursorPosition(cursor);
    } else if (auto* label = Find<QLabel>(widget, control)) {
        label->setText(ToQt(text));
    }
}

QLabel* NewLabel(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLineEdit* NewTextBox(const std::string& name, const QString& accessibleName) {
    auto* box = new QLineEdit;
    box->setObjectName(QString::fromStdString(name));
    box->setAccessibleName(accessibleName);
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
