// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/FormView.h"

#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QString>
#include <QWidget>
#include <functional>

namespace orvel::ui {

// The part of a form's view that all windows share: controls are found by their object names. A window
// derives from it beside its widget and passes itself.
class Form : public FormView {
public:
    explicit Form(const QWidget* window) : widget(window) {}

    [[nodiscard]] std::string Text(std::string_view control) const override;
    void SetText(std::string_view control, const std::string& text) override;

private:
    const QWidget* widget;
};

// Controls with a name for the program and one for screen readers; a label is a buddy's.
[[nodiscard]] QLabel* NewLabel(const char* name);
[[nodiscard]] QLineEdit* NewTextBox(const std::string& name, const QString& accessibleName);

// What the entry windows end with: "Save" (cmdBtnSave, the default button) runs `save`, "Cancel"
// (cmdBtnCancel) rejects the dialog.
[[nodiscard]] QLayout* NewSaveAndCancel(QDialog& dialog, const std::function<void()>& save);

} // namespace orvel::ui
