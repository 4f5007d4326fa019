// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Printing.h"
#include "core/ProgramWindows.h"
#include "report/ReportBuilder.h"
#include "report/RichTextBox.h"

#include <string>
#include <string_view>

namespace orvel {

// The report window: the report of the open test, to be looked at, touched up, saved and printed. It never
// changes the test.
class frmReport {
public:
    // The window's least size, in twips.
    static constexpr float kLeastWidth = 9660;
    static constexpr float kLeastHeight = 4200;

    // Buttons of tbToolBar that show a state, by their index from 1; gaps do not count.
    enum class ToolButton { Bold = 5, Italic = 6, Lock = 7 };

    // All lengths are in twips, 15 to a logical pixel.
    class View {
    public:
        virtual ~View() = default;

        [[nodiscard]] virtual RichTextBox& ReportRTB() = 0;
        virtual void SetReportSize(float width, float height) = 0;
        virtual void ShowPressed(ToolButton button, bool isPressed) = 0;
        // The first panel of sbStatusBar.
        virtual void SetStatusText(const std::string& text) = 0;

        // The window on the screen.
        [[nodiscard]] virtual float Left() const = 0;
        [[nodiscard]] virtual float Top() const = 0;
        [[nodiscard]] virtual float Width() const = 0;
        [[nodiscard]] virtual float Height() const = 0;
        virtual void SetLeft(float left) = 0;
        virtual void SetTop(float top) = 0;
        virtual void SetWidth(float width) = 0;
        virtual void SetHeight(float height) = 0;
        [[nodiscard]] virtual bool IsMinimized() const = 0;
        // What is inside of its frame and below its menus, tool bar and status bar included.
        [[nodiscard]] virtual float InnerWidth() const = 0;
        [[nodiscard]] virtual float InnerHeight() const = 0;

        // Closes the window for good.
        virtual void Unload() = 0;
    };

    // The view and the windows must outlive it.
    frmReport(View& ofWindow, ProgramWindows& ofProgram);

    void Form_Load();
    void Form_Resize();
    void Form_Unload();
    // The user asks for the report while its window is open.
    void ShowAgain();

    void mnuFileOpen_Click();
    void mnuFileClose_Click();
    void mnuRefreshReport_Click();
    void mnuFileSaveAs_Click();
    void mnuSaveHTML_Click();
    void mnuFilePrint_Click();
    void mnuFileExit_Click();

    void mnuUndo_Click();
    void mnuCut_Click();
    void mnuCopy_Click();
    // kept: does nothing.
    void mnuEditCopy_Click() {}
    void mnuPaste_Click();

    void mnuMainWindow_Click();
    void mnuDataEntry_Click();
    void mnuInstructions_Click();
    void mnuHelpContents_Click();
    void mnuHelpAbout_Click();

    // The key of a button: "Back", "Open", "Save", "Print", "Bold", "Italic", "Lock", "Help" or "Refresh".
    void tbToolBar_ButtonClick(std::string_view key);

    // The orientation of the last print command.
    [[nodiscard]] Orientation PrintOrientation() const { return printOrientation; }

private:
    // False when the program's test kind has no report.
    bool BuildReport();
    void ShowCurrentFile();
    void Lock(bool isLocked);
    // Of a text that was just put in, as it begins.
    void ShowBoldAndItalic();
    // Makes a property of the whole text the opposite of what it is; a text that has it in part gets it.
    void ToggleWholeText(ToolButton button, bool (RichTextBox::*has)() const, void (RichTextBox::*set)(bool));
    void Print();

    View& view;
    ProgramWindows& windows;
    RichTextBox& reportRTB;
    ReportBuilder builder;
    PrintDialog printDialog;
    Orientation printOrientation = Orientation::Portrait;
};

} // namespace orvel
