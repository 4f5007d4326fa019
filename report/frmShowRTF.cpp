// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/frmShowRTF.h"

#include "centerpivot/CenterPivotListing.h"
#include "core/FileNames.h"
#include "core/Messages.h"
#include "core/Platform.h"
#include "core/ProgramState.h"
#include "core/ProgramWindows.h"
#include "core/RunTimeError.h"
#include "core/TestFile.h"
#include "report/PrintRTB.h"
#include "report/ReportFont.h"
#include "report/SaveCommand.h"
#include "solidset/SolidSetListing.h"

#include <filesystem>

namespace orvel {

namespace {

constexpr const char* kNoHelp = "No Help File Available";
constexpr const char* kHowToMakeHelp = "To create a help file, use a word processor "
                                       "to create the instructions and save the file "
                                       "as 'Help.rtf' (rich text format) in the same "
                                       "directory as ORVEL is installed in. This file "
                                       "will then open automatically as the help file. ";

} // namespace

frmShowRTF::frmShowRTF(View& ofWindow)
    : view(ofWindow), textBox(ofWindow.TextBox()), printDialog(NewPrintDialog()) {}

void frmShowRTF::ShowTopic(std::string_view what) {
    const ProgramState& program = Program();
    if (what == kViewHelp) {
        LoadHelp();
    } else if (what == kViewCenterPivotData) {
        ShowListing(CenterPivotListingText(), "Center Pivot Data - " + FileNameText(program.centerPivotFile));
    } else if (what == kViewSolidSetData) {
        ShowListing(SolidSetListingText(), "Solid Set Data - " + FileNameText(program.solidSetFile));
    }
    view.Show();
}

void frmShowRTF::LoadHelp() {
    const std::filesystem::path help = FindFile(Program().programDirectory, "help.rtf");
    if (!FileExists(help)) {
        view.SetCaption(kNoHelp);
        ShowPlainText(std::string{kNoHelp} + "\r\r" + kHowToMakeHelp);
        return;
    }
    view.SetCaption("Help & Instructions");
    try {
        textBox.Load(help);
    } catch (const RunTimeError& error) {
        ShowPlainText(PathText(help) + " can't be opened: " + error.what() + ".");
    }
}

void frmShowRTF::ShowListing(const std::string& listing, const std::string& caption) {
    ShowPlainText(listing);
    view.SetCaption(caption);
}

void frmShowRTF::ShowPlainText(const std::string& text) {
    UseReportFont(textBox);
    textBox.SetText(text);
}

void frmShowRTF::cmdBtnPrint_Click() {
    RunPrintCommand([this] {
        const Platform& platform = CurrentPlatform();
        platform.printDialog->ShowPrinter(printDialog);
        platform.printer->SetCopies(printDialog.copies);
        if (HasTextToPrint(textBox)) {
            PrintRichText(textBox);
        }
    });
}

void frmShowRTF::cmdBtnSave_Click() {
    RunSaveCommand("Save Information As - Enter File Name", kRtfSaveFilter,
                   [this](const std::filesystem::path& path) { textBox.Save(path); });
}

void frmShowRTF::cmdBtnClose_Click() {
    view.Unload();
}

} // namespace orvel
