// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/frmShowRTF.h"
#include "ui/RichTextEdit.h"

#include <QDialog>
#include <functional>
#include <string>
#include <string_view>

namespace orvel::ui {

// It deletes itself when it is closed.
class ViewerWindow : public QDialog, private frmShowRTF::View {
public:
    // The owner is a modal window: the viewer can be used beside it and closes with it. None: it stands
    // alone.
    explicit ViewerWindow(QWidget* owner);

    // Shows what the name stands for (ProgramWindows::ShowViewer), in front of the other windows.
    void ShowTopic(std::string_view what);

private:
    using Handler = void (frmShowRTF::*)();

    [[nodiscard]] QWidget* NewButton(const char* name, const char* caption, Handler handler);

    RichTextBox& TextBox() override { return *text; }
    void SetCaption(const std::string& caption) override;
    void Show() override;
    void Unload() override { close(); }

    RichTextEdit* text;
    frmShowRTF logic;
};

} // namespace orvel::ui
