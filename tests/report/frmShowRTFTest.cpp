// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/frmShowRTF.h"

#include "centerpivot/CenterPivotListing.h"
#include "core/ProgramState.h"
#include "core/ProgramWindows.h"
#include "core/RecordFiles.h"
#include "solidset/SolidSetListing.h"
#include "tests/report/FrmShowRTFFixture.h"
#include "tests/report/PrintableBox.h"
#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

using testing::Contents;
using testing::Lines;
using testing::PutContents;

TEST_F(FrmShowRTF, HelpLoadsItsFile) {
    PutContents(folder / "help.rtf", R"({\rtf1 How to {\b set out} cups})");
    Show(kViewHelp);
    EXPECT_EQ(Said(), (Lines{"caption Help & Instructions", "show"}));
    EXPECT_EQ(box.Text(), "How to set out cups");
}

TEST_F(FrmShowRTF, HelpIsFoundWhateverTheCaseOfItsLetters) {
    PutContents(folder / "HELP.Rtf", R"({\rtf1 Capital})");
    Show(kViewHelp);
    EXPECT_EQ(Said().front(), "caption Help & Instructions");
    EXPECT_EQ(box.Text(), "Capital");
    PutContents(folder / "help.rtf", R"({\rtf1 Small})");
    Show(kViewHelp);
    Said();
    EXPECT_EQ(box.Text(), "Small");
}

TEST_F(FrmShowRTF, MissingHelpIsExplained) {
    box.SetSelectionBold(true);
    Show(kViewHelp);
    EXPECT_EQ(Said(), (Lines{"caption No Help File Available", "show"}));
    EXPECT_EQ(box.Text(), "No Help File Available\r\r"
                          "To create a help file, use a word processor to create the instructions and save "
                          "the file as 'Help.rtf' (rich text format) in the same directory as ORVEL is "
                          "installed in. This file will then open automatically as the help file. ");
    EXPECT_FALSE(box.IsSelectionBold());
}

TEST_F(FrmShowRTF, HelpThatIsNoRichTextShowsAsItIs) {
    PutContents(folder / "help.rtf", "Only text.");
    Show(kViewHelp);
    EXPECT_EQ(Said().front(), "caption Help & Instructions");
    EXPECT_EQ(box.Text(), "Only text.");
}

TEST_F(FrmShowRTF, ListingsTakeTheNameOfTheirFile) {
    Program().centerPivotFile = testing::Example("pivot-1978.cpd");
    Program().centerPivotTest = ReadTest<CenterPivotTest>(Program().centerPivotFile);
    Show("CPData");
    EXPECT_EQ(Said(), (Lines{"caption Center Pivot Data - pivot-1978.cpd", "show"}));
    EXPECT_EQ(box.Text(), CenterPivotListingText());

    Program().solidSetFile = testing::Example("solid-set-1997.ssd");
    Program().solidSetTest = ReadTest<SolidSetTest>(Program().solidSetFile);
    Show("SSData");
    EXPECT_EQ(Said(), (Lines{"caption Solid Set Data - solid-set-1997.ssd", "show"}));
    EXPECT_EQ(box.Text(), SolidSetListingText());
}

TEST_F(FrmShowRTF, AListingBehindAHelpIsInItsOwnFont) {
    PutContents(folder / "help.rtf", R"({\rtf1{\fonttbl{\f0 Arial;}}\f0\fs40\b\i\ul Help})");
    Show(kViewHelp);
    Show("SSData");
    Said();
    const RichDocument document = box.Document();
    ASSERT_FALSE(document.paragraphs.front().runs.empty());
    EXPECT_EQ(document.paragraphs.front().runs.front().format,
              (CharacterFormat{.font = "Courier New", .halfPoints = 18, .color = {}}));
}

TEST_F(FrmShowRTF, PrintingSetsThePrintersCopiesAndPrintsOnce) {
    box.SetText("text");
    printDialog.chosenCopies = 3;
    window.cmdBtnPrint_Click();
    EXPECT_EQ(Said(), (Lines{"print dialog [Print Report] 0x140006, 1 copies", "printer's copies 3", "blank",
                             "twips", "draw from 0 to -1 on page 1", "end of document", "free"}));
}

TEST_F(FrmShowRTF, AnEmptyTextIsToldBehindTheDialog) {
    window.cmdBtnPrint_Click();
    EXPECT_EQ(Said(), (Lines{"print dialog [Print Report] 0x140006, 1 copies", "printer's copies 1",
                             "box [Printing Error] There is no text to print. (Ok)"}));
}

TEST_F(FrmShowRTF, ACancelledPrintEndsWithoutAWord) {
    box.SetText("text");
    printDialog.error = ErrorNumber::CancelWasSelected;
    window.cmdBtnPrint_Click();
    EXPECT_EQ(Said(), (Lines{"print dialog [Print Report] 0x140006, 1 copies"}));
}

TEST_F(FrmShowRTF, PrintingLeavesTheSettingsOfThePrinterAndTheDialogAlone) {
    box.SetText("text");
    printDialog.chosenOrientation = Orientation::Landscape;
    printDialog.chosenCopies = 2;
    window.cmdBtnPrint_Click();
    Said();
    EXPECT_FALSE(Program().savedPrinterSettings);
    EXPECT_EQ(printer.orientation, Orientation::Portrait);
    printDialog.chosenCopies.reset();
    window.cmdBtnPrint_Click();
    EXPECT_EQ(Said().front(), "print dialog [Print Report] 0x140006, 2 copies") << "as it was left";
}

TEST_F(FrmShowRTF, APrinterThatFailsIsToldAndTheTextStays) {
    box.SetText("text");
    printer.blankError = ErrorNumber::DeviceIoError;
    window.cmdBtnPrint_Click();
    EXPECT_EQ(Said(), (Lines{"print dialog [Print Report] 0x140006, 1 copies", "printer's copies 1", "blank",
                             "free", "job dropped",
                             "box [Printing Error] The text could not be printed: Device I/O error. (Ok, "
                             "Critical)"}));
    EXPECT_EQ(box.Text(), "text");
}

TEST_F(FrmShowRTF, ShowingATopicReplacesTheOther) {
    Show("SSData");
    Show("Help");
    EXPECT_EQ(Said(), (Lines{"caption Solid Set Data - ", "show", "caption No Help File Available", "show"}));
    EXPECT_TRUE(box.Text().starts_with("No Help File Available\r\r"));
    Show("CPData");
    EXPECT_EQ(Said(), (Lines{"caption Center Pivot Data - ", "show"}));
    EXPECT_EQ(box.Text(), CenterPivotListingText());
}

TEST_F(FrmShowRTF, SavesAsRichText) {
    box.SetText("text");
    surroundings.paths = {folder / "saved.rtf", {}};
    window.cmdBtnSave_Click();
    window.cmdBtnSave_Click();
    const std::string dialog =
        "save [Save Information As - Enter File Name] All Files (*.rtf)|*.rtf; rtf; 0x2806; ";
    EXPECT_EQ(Said(), (Lines{dialog, dialog}));
    EXPECT_TRUE(Contents(folder / "saved.rtf").starts_with("{\\rtf1"));
}

TEST_F(FrmShowRTF, ASaveThatFailsIsToldWhateverTheError) {
    box.SetText("text");
    surroundings.paths = {folder / "none/saved.rtf", folder / "saved.rtf"};
    const Lines failure = {
        "save [Save Information As - Enter File Name] All Files (*.rtf)|*.rtf; rtf; 0x2806; ",
        "box [File Save Error] Error in saving file. Please check drives and disk space. (Ok, Critical)"};
    window.cmdBtnSave_Click();
    EXPECT_EQ(Said(), failure);
    box.saveError = ErrorNumber::TypeMismatch;
    window.cmdBtnSave_Click();
    EXPECT_EQ(Said(), failure);
    EXPECT_EQ(box.Text(), "text");
}

TEST_F(FrmShowRTF, CloseUnloads) {
    window.cmdBtnClose_Click();
    EXPECT_EQ(Said(), (Lines{"unload"}));
}

} // namespace

} // namespace orvel
