// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/report/FrmReportFixture.h"

namespace orvel::testing {

namespace {

TEST_F(FrmReport, PrintingTakesItsStepsInTheirOrder) {
    LoadPivot();
    printDialog.chosenCopies = 3;
    reportBox.pageEnds = {100, 200};
    window.mnuFilePrint_Click();
    EXPECT_EQ(Said(), (Lines{"print dialog [Print Report] 0x140006, 1 copies",
                             "orientation 1",
                             "printer's copies 1",
                             "blank",
                             "twips",
                             "draw from 0 to -1 on page 1",
                             "new page",
                             "blank",
                             "draw from 100 to -1 on page 2",
                             "new page",
                             "blank",
                             "draw from 200 to -1 on page 3",
                             "end of document",
                             "free",
                             "blank",
                             "twips",
                             "draw from 0 to -1 on page 1",
                             "end of document",
                             "free",
                             "blank",
                             "twips",
                             "draw from 0 to -1 on page 1",
                             "end of document",
                             "free"}));
    EXPECT_EQ(window.PrintOrientation(), Orientation::Portrait);
    printDialog.chosenCopies.reset();
    window.mnuFilePrint_Click();
    EXPECT_EQ(Said().front(), "print dialog [Print Report] 0x140006, 1 copies") << "again one";
}

TEST_F(FrmReport, PrintingSavesThePrintersSettingsBeforeItsDialog) {
    LoadPivot();
    printer.orientation = Orientation::Landscape;
    printDialog.error = ErrorNumber::CancelWasSelected;
    window.mnuFilePrint_Click();
    ASSERT_TRUE(Program().savedPrinterSettings);
    EXPECT_EQ(Program().savedPrinterSettings->orientation, Orientation::Landscape);
    EXPECT_EQ(Program().savedPrinterSettings->copies, 7);
    EXPECT_EQ(Said(), (Lines{"print dialog [Print Report] 0x140006, 1 copies"}))
        << "cancelled without a word";
    EXPECT_EQ(printer.orientation, Orientation::Landscape) << "nobody sets them back";

    window.tbToolBar_ButtonClick("Print");
    EXPECT_EQ(Said(), (Lines{"print dialog [Print Report] 0x140006, 1 copies"})) << "nor from the tool bar";
}

TEST_F(FrmReport, PrintingRemembersTheOrientationOfTheDialog) {
    LoadPivot();
    printDialog.chosenOrientation = Orientation::Landscape;
    window.tbToolBar_ButtonClick("Print");
    EXPECT_EQ(window.PrintOrientation(), Orientation::Landscape);
    EXPECT_EQ(printer.orientation, Orientation::Landscape);
    Said();
    printDialog.chosenOrientation = static_cast<Orientation>(0);
    window.mnuFilePrint_Click();
    EXPECT_EQ(window.PrintOrientation(), Orientation::Portrait) << "anything but landscape";
    Said();
}

TEST_F(FrmReport, AnEmptyTextIsToldBehindTheDialog) {
    LoadPivot();
    window.mnuFileClose_Click();
    printDialog.chosenCopies = 2;
    window.mnuFilePrint_Click();
    EXPECT_EQ(Said(), (Lines{"emptied", "print dialog [Print Report] 0x140006, 1 copies", "orientation 1",
                             "box [Printing Error] There is no text to print. (Ok)"}));
    printDialog.chosenCopies.reset();
    window.mnuFilePrint_Click();
    EXPECT_EQ(Said().front(), "print dialog [Print Report] 0x140006, 2 copies") << "nothing was printed";
}

TEST_F(FrmReport, APrinterThatFailsIsToldAndTheReportStays) {
    LoadPivot();
    printer.blankError = ErrorNumber::DeviceIoError;
    window.mnuFilePrint_Click();
    EXPECT_EQ(Said(), (Lines{"print dialog [Print Report] 0x140006, 1 copies", "orientation 1",
                             "printer's copies 1", "blank", "free", "job dropped",
                             "box [Printing Error] The text could not be printed: Device I/O error. (Ok, "
                             "Critical)"}));
    EXPECT_TRUE(ShowsReport());
}

TEST_F(FrmReport, BoldIsTheOppositeOfTheWholeText) {
    LoadPivot();
    reportBox.Select(10, 20);
    reportBox.SetSelectionBold(true);
    window.tbToolBar_ButtonClick("Bold");
    EXPECT_EQ(Said(), (Lines{"button 5 pressed"})) << "bold in part is not bold";
    EXPECT_EQ(reportBox.SelectionStart(), 0U);
    EXPECT_EQ(reportBox.SelectionLength(), 0U);
    reportBox.Select(0, reportBox.Text().size());
    EXPECT_TRUE(reportBox.IsSelectionBold());
    EXPECT_FALSE(reportBox.IsSelectionItalic());

    window.tbToolBar_ButtonClick("Bold");
    EXPECT_EQ(Said(), (Lines{"button 5 unpressed"}));
    reportBox.Select(10, 1);
    EXPECT_FALSE(reportBox.IsSelectionBold());
}

TEST_F(FrmReport, ButtonsSayHowABuiltTextBegins) {
    LoadPivot();
    window.tbToolBar_ButtonClick("Bold");
    Program().centerPivotTest.ClientName = "";
    Said();
    window.mnuRefreshReport_Click();
    EXPECT_EQ(reportBox.Text(), "Errors in data file - report not created.");
    EXPECT_TRUE(reportBox.IsSelectionBold()) << "no report, no reset";
    EXPECT_EQ(Said().at(1), "button 5 pressed");
    Program().centerPivotTest.ClientName = "Somebody";
    window.mnuRefreshReport_Click();
    EXPECT_FALSE(reportBox.IsSelectionBold());
    EXPECT_EQ(Said().at(1), "button 5 unpressed");
}

TEST_F(FrmReport, ItalicIsTheOppositeOfTheWholeText) {
    LoadPivot();
    window.tbToolBar_ButtonClick("Italic");
    EXPECT_EQ(Said(), (Lines{"button 6 pressed"}));
    reportBox.Select(0, reportBox.Text().size());
    EXPECT_TRUE(reportBox.IsSelectionItalic());
    EXPECT_FALSE(reportBox.IsSelectionBold());
    EXPECT_EQ(reportBox.SelectionLength(), reportBox.Text().size());
    window.tbToolBar_ButtonClick("Italic");
    EXPECT_EQ(Said(), (Lines{"button 6 unpressed"}));
    EXPECT_EQ(reportBox.SelectionLength(), 0U);
    reportBox.Select(10, 1);
    EXPECT_FALSE(reportBox.IsSelectionItalic());
    reportBox.SetSelectionItalic(true);
    window.tbToolBar_ButtonClick("Italic");
    EXPECT_EQ(Said(), (Lines{"button 6 pressed"})) << "italic in part is not italic";
}

TEST_F(FrmReport, BoldAndItalicDoNotTouchEachOther) {
    LoadPivot();
    window.tbToolBar_ButtonClick("Bold");
    window.tbToolBar_ButtonClick("Italic");
    window.tbToolBar_ButtonClick("Bold");
    EXPECT_EQ(Said(), (Lines{"button 5 pressed", "button 6 pressed", "button 5 unpressed"}));
    reportBox.Select(0, reportBox.Text().size());
    EXPECT_FALSE(reportBox.IsSelectionBold());
    EXPECT_TRUE(reportBox.IsSelectionItalic());
}

TEST_F(FrmReport, LockIsTheOppositeOfWhatItIs) {
    LoadPivot();
    window.tbToolBar_ButtonClick("Lock");
    EXPECT_EQ(Said(), (Lines{"not read-only", "button 7 unpressed"}));
    window.tbToolBar_ButtonClick("Lock");
    EXPECT_EQ(Said(), (Lines{"read-only", "button 7 pressed"}));
}

TEST_F(FrmReport, EditCommandsAreKeys) {
    window.mnuUndo_Click();
    window.mnuCut_Click();
    window.mnuCopy_Click();
    window.mnuPaste_Click();
    EXPECT_EQ(Said(), (Lines{"Ctrl+Z", "Ctrl+X", "Ctrl+C", "Ctrl+V"}));
    window.mnuEditCopy_Click();
    EXPECT_EQ(Said(), Lines{}) << "Copy Report does nothing";
}

TEST_F(FrmReport, LeadsToTheOtherWindows) {
    window.mnuMainWindow_Click();
    window.mnuInstructions_Click();
    window.mnuHelpContents_Click();
    window.tbToolBar_ButtonClick("Help");
    window.mnuHelpAbout_Click();
    window.mnuFileExit_Click();
    window.tbToolBar_ButtonClick("Back");
    EXPECT_EQ(Said(), (Lines{"show frmMain", "view Help", "view Help", "view Help", "show frmAbout", "unload",
                             "unload"}));
}

TEST_F(FrmReport, DataEntryFollowsTheKindAlone) {
    window.mnuDataEntry_Click();
    Program().testKind = kSolidSet;
    window.mnuDataEntry_Click();
    EXPECT_EQ(Said(), (Lines{"show frmCenterPivotData", "show frmSolidSetData"}))
        << "without an open file, too";
    Program().testKind = "none";
    window.mnuDataEntry_Click();
    EXPECT_EQ(Said(), Lines{});
}

TEST_F(FrmReport, AnUnknownButtonDoesNothing) {
    LoadPivot();
    window.tbToolBar_ButtonClick("bold");
    EXPECT_EQ(Said(), Lines{});
}

} // namespace

} // namespace orvel::testing
