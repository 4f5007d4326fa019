// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Printing.h"
#include "report/RichTextBox.h"

#include <string>
#include <string_view>

namespace orvel {

// The viewer: a text to be read, saved and printed.
class frmShowRTF {
public:
    class View {
    public:
        virtual ~View() = default;
        [[nodiscard]] virtual RichTextBox& TextBox() = 0;
        virtual void SetCaption(const std::string& caption) = 0;
        // Puts the window on the screen, in front.
        virtual void Show() = 0;
        // Closes it for good.
        virtual void Unload() = 0;
    };

    // The view must outlive it.
    explicit frmShowRTF(View& ofWindow);

    // Shows what the name stands for: kViewHelp, kViewCenterPivotData or kViewSolidSetData (ProgramWindows).
    void ShowTopic(std::string_view what);

    void cmdBtnPrint_Click();
    void cmdBtnSave_Click();
    void cmdBtnClose_Click();

private:
    void LoadHelp();
    void ShowListing(const std::string& listing, const std::string& caption);
    void ShowPlainText(const std::string& text);

    View& view;
    RichTextBox& textBox;
    PrintDialog printDialog;
};

} // namespace orvel
