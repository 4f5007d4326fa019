// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/frmReport.h"

#include "core/DataEntry.h"
#include "core/EditCommands.h"
#include "core/FileNames.h"
#include "core/Messages.h"
#include "core/NumberText.h"
#include "core/Platform.h"
#include "core/ProgramState.h"
#include "core/RunTimeError.h"
#include "core/SafeFile.h"
#include "core/TestFile.h"
#include "report/HtmlReport.h"
#include "report/PrintRTB.h"
#include "report/PrinterSettings.h"
#include "report/ReportFont.h"
#include "report/SaveCommand.h"

#include <array>

namespace orvel {

namespace {

namespace fs = std::filesystem;

constexpr const char* kSection = "Settings";

// A length of the window that is kept from one run to the next, under its key.
struct KeptLength {
    const char* key; // kept: "Main", though the main window has no part in them
    const char* fallback;
    float (frmReport::View::*get)() const;
    void (frmReport::View::*set)(float);
};

using View = frmReport::View;

constexpr std::array<KeptLength, 4> kKeptLengths = {{
    {"MainLeft", "1000", &View::Left, &View::SetLeft},
    {"MainTop", "1000", &View::Top, &View::SetTop},
    {"MainWidth", "6500", &View::Width, &View::SetWidth},
    {"MainHeight", "6500", &View::Height, &View::SetHeight},
}};

float LengthOf(const KeptLength& length) {
    const std::string text = CurrentPlatform().settingsStore->Get(kSection, length.key, length.fallback);
    try {
        return ToSingle(text);
    } catch (const RunTimeError&) {
        // Trapped: somebody else has written it.
        return ToSingle(length.fallback);
    }
}

} // namespace

frmReport::frmReport(View& ofWindow, ProgramWindows& ofProgram)
    : view(ofWindow), windows(ofProgram), reportRTB(ofWindow.ReportRTB()), builder(reportRTB),
      printDialog(NewPrintDialog()) {}

void frmReport::Form_Load() {
    std::array<float, kKeptLengths.size()> lengths{};
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        lengths.at(i) = LengthOf(kKeptLengths.at(i));
    }
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        (view.*kKeptLengths.at(i).set)(lengths.at(i));
    }
    BuildReport();
    Lock(true);
    ShowCurrentFile();
    reportRTB.SetSelectionFontName(kReportFont);
    reportRTB.SetSelectionFontSize(kReportFontPoints);
}

void frmReport::Form_Resize() {
    constexpr float kBesideReport = 500;
    constexpr float kAboveAndBelowReport = 1000;
    if (view.IsMinimized()) {
        return;
    }
    try {
        if (view.Height() < kLeastHeight) {
            view.SetHeight(kLeastHeight);
        }
        if (view.Width() < kLeastWidth) {
            view.SetWidth(kLeastWidth);
        }
        view.SetReportSize(view.InnerWidth() - kBesideReport, view.InnerHeight() - kAboveAndBelowReport);
    } catch (const RunTimeError&) {
        // Trapped and ignored: another resize comes.
    }
}

void frmReport::Form_Unload() {
    if (view.IsMinimized()) {
        return;
    }
    for (const KeptLength& length : kKeptLengths) {
        CurrentPlatform().settingsStore->Save(kSection, length.key,
                                              PlainText((view.*length.get)(), InvariantNumberLocale()));
    }
}

void frmReport::ShowAgain() {
    mnuRefreshReport_Click();
    Lock(true);
}

void frmReport::mnuFileOpen_Click() {
    const fs::path path = CurrentPlatform().fileDialogs->Open({.title = "Open File",
                                                               .filter = "RTF Files (*.rtf)|*.rtf",
                                                               .defaultExtension = {},
                                                               .initialFolder = {}});
    // The file may have vanished since it was chosen.
    if (!FileExists(path)) {
        return;
    }
    try {
        reportRTB.Load(path);
    } catch (const RunTimeError& error) {
        TellError(PathText(path) + " can't be opened: " + error.what() + ".", "Open File");
        return;
    }
    ShowBoldAndItalic();
    view.SetStatusText("Current RTF File: " + FileNameText(path));
}

void frmReport::mnuFileClose_Click() {
    reportRTB.SetText("");
}

void frmReport::mnuRefreshReport_Click() {
    if (BuildReport()) {
        Lock(true);
    }
    ShowCurrentFile();
}

void frmReport::mnuFileSaveAs_Click() {
    RunSaveCommand("Save Report As - Enter File Name", kRtfSaveFilter,
                   [this](const fs::path& path) { reportRTB.Save(path); });
}

void frmReport::mnuSaveHTML_Click() {
    RunSaveCommand("Save Report as HTML", "All Files (*.html)|*.html", [this](const fs::path& path) {
        ReplaceFile(path, HtmlOfReport(reportRTB.Text()), Flush::ToDisk);
    });
}

void frmReport::mnuFilePrint_Click() {
    RunPrintCommand([this] { Print(); });
}

void frmReport::mnuFileExit_Click() {
    view.Unload();
}

void frmReport::mnuUndo_Click() {
    SendUndo();
}

void frmReport::mnuCut_Click() {
    SendCut();
}

void frmReport::mnuCopy_Click() {
    SendCopy();
}

void frmReport::mnuPaste_Click() {
    SendPaste();
}

void frmReport::mnuMainWindow_Click() {
    windows.ShowMain();
}

void frmReport::mnuDataEntry_Click() {
    ShowDataWindow(windows);
}

void frmReport::mnuInstructions_Click() {
    windows.ShowViewer(kViewHelp);
}

void frmReport::mnuHelpContents_Click() {
    mnuInstructions_Click();
}

void frmReport::mnuHelpAbout_Click() {
    windows.ShowAbout();
}

void frmReport::tbToolBar_ButtonClick(std::string_view key) {
    if (key == "Back") {
        view.Unload();
    } else if (key == "Open") {
        mnuFileOpen_Click();
    } else if (key == "Save") {
        mnuFileSaveAs_Click();
    } else if (key == "Print") {
        mnuFilePrint_Click();
    } else if (key == "Bold") {
        ToggleWholeText(ToolButton::Bold, &RichTextBox::IsSelectionBold, &RichTextBox::SetSelectionBold);
    } else if (key == "Italic") {
        ToggleWholeText(ToolButton::Italic, &RichTextBox::IsSelectionItalic,
                        &RichTextBox::SetSelectionItalic);
    } else if (key == "Lock") {
        Lock(!reportRTB.IsReadOnly());
    } else if (key == "Help") {
        windows.ShowViewer(kViewHelp);
    } else if (key == "Refresh") {
        mnuRefreshReport_Click();
    }
}

bool frmReport::BuildReport() {
    if (Program().testKind == kSolidSet) {
        builder.BuildSolidSetReport();
    } else if (Program().testKind == kCenterPivot) {
        try {
            builder.BuildCenterPivotReport();
        } catch (const RunTimeError& error) {
            // The builder of this kind has no trap.
            reportRTB.SetText("");
            ShowGenerationError(error);
        }
    } else {
        return false;
    }
    ShowBoldAndItalic();
    return true;
}

void frmReport::ShowCurrentFile() {
    const ProgramState& program = Program();
    fs::path file;
    if (program.testKind == kCenterPivot) {
        file = program.centerPivotFile;
    } else if (program.testKind == kSolidSet) {
        file = program.solidSetFile;
    }
    view.SetStatusText("Current File: " + FileNameText(file));
}

void frmReport::Lock(bool isLocked) {
    reportRTB.SetReadOnly(isLocked);
    view.ShowPressed(ToolButton::Lock, isLocked);
}

void frmReport::ShowBoldAndItalic() {
    view.ShowPressed(ToolButton::Bold, reportRTB.IsSelectionBold());
    view.ShowPressed(ToolButton::Italic, reportRTB.IsSelectionItalic());
}

void frmReport::ToggleWholeText(ToolButton button, bool (RichTextBox::*has)() const,
                                void (RichTextBox::*set)(bool)) {
    reportRTB.Select(0, reportRTB.Text().size());
    (reportRTB.*set)(!(reportRTB.*has)());
    view.ShowPressed(button, (reportRTB.*has)());
    reportRTB.Select(0, 0);
}

void frmReport::Print() {
    const Platform& platform = CurrentPlatform();
    PrinterSettings(kSaveThem);
    platform.printDialog->ShowPrinter(printDialog);
    printOrientation =
        printDialog.orientation == Orientation::Landscape ? Orientation::Landscape : Orientation::Portrait;
    platform.printer->SetPaperOrientation(printOrientation);
    if (!HasTextToPrint(reportRTB)) {
        return;
    }
    // Each copy is a job of its own.
    platform.printer->SetCopies(1);
    for (int left = printDialog.copies; left > 0; --left) {
        PrintRichText(reportRTB);
    }
    printDialog.copies = 1;
}

} // namespace orvel
