// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/CodePage.h"
#include "core/FormView.h"

#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QString>
#include <QWidget>
#include <functional>

namespace orvel::ui {

// The text, as UTF-8, of the window's control of that name: a text box of one line or many, or a combo box.
// The line ends of many lines are CR LF in the text, or what they were for as long as nobody edits it; half
// of one, at the end of a cut text, is dropped.
[[nodiscard]] std::string ControlText(const QWidget& window, std::string_view control);
// The same controls and labels. The cursor stays where the user types.
void SetControlText(const QWidget& window, std::string_view control, const std::string& utf8);

// A form's view as far as all windows share it: controls are found by their object names. A window derives
// from it beside its widget and passes itself.
template <class View>
class FormOf : public View {
public:
    explicit FormOf(const QWidget* ofWindow) : window(*ofWindow) {}

    [[nodiscard]] std::string Text(std::string_view control) const override {
        return FromUtf8(ControlText(window, control));
    }

    void SetText(std::string_view control, const std::string& text) override {
        SetControlText(window, control, ToUtf8(text));
    }

private:
    const QWidget& window;
};

using Form = FormOf<FormView>;

template <class Control>
[[nodiscard]] Control* FindControl(const QWidget& window, std::string_view name) {
    return window.findChild<Control*>(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
}

// Controls with a name for the program and one for screen readers; a label is a buddy's.
[[nodiscard]] QLabel* NewLabel(const char* name);
[[nodiscard]] QLineEdit* NewTextBox(const std::string& name, const QString& accessibleName);

// Lines that are pasted into the box become one, with a blank between them; NewTextBox sees to it itself.
void KeepOneLine(QLineEdit& box);

// What the entry windows end with: "Save" (cmdBtnSave, the default button) runs `save`, "Cancel"
// (cmdBtnCancel) rejects the dialog.
[[nodiscard]] QLayout* NewSaveAndCancel(QDialog& dialog, const std::function<void()>& save);

} // namespace orvel::ui
