// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Form.h"

#include "ui/TextEdge.h"

namespace orvel::ui {

namespace {

template <class Control>
Control* Find(const QWidget& window, std::string_view name) {
    return window.findChild<Control*>(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
}

} // namespace

std::string Form::Text(std::string_view control) const {
    const auto* box = Find<QLineEdit>(widget, control);
    return FromQt(box->text());
}

void Form::SetText(std::string_view control, const std::string& text) {
    if (auto* box = Find<QLineEdit>(widget, control)) {
        box->setText(ToQt(text));
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

} // namespace orvel::ui
