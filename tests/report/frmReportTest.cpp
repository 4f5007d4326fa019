// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/report/FrmReportFixture.h"

namespace orvel::testing {

namespace {

TEST_F(FrmReport, LoadingReadsTheGeometryThenBuildsThenLocks) {
    OpenPivot();
    window.Form_Load();
    EXPECT_EQ(Said(), (Lines{"get Settings/MainLeft or 1000", "get Settings/MainTop or 1000",
                             "get Settings/MainWidth or 6500", "get Settings/MainHeight or 6500", "left 1000",
                             "top 1000", "width 6500", "height 6500", "selection size 9",
                             "button 5 unpressed", "button 6 unpressed", "read-only", "button 7 pressed",
                             "status Current File: pivot-1978.cpd", "selection font Courier New",
                             "selection size 9"}));
    EXPECT_TRUE(ShowsReport());
    EXPECT_NE(reportBox.Text().find("Center Pivot Water Application Uniformity Test"), std::string::npos);
}

TEST_F(FrmReport, LoadingShowsASolidSetReport) {
    OpenSolid();
    window.Form_Load();
    const Lines said = Said();
    EXPECT_NE(std::ranges::find(said, "status Current File: solid-set-triangle.ssd"), said.end());
    EXPECT_NE(reportBox.Text().find("Solid Set Water Application Uniformity Test"), std::string::npos);
    EXPECT_TRUE(reportBox.IsReadOnly());
}

TEST_F(FrmReport, AnotherKindOpensAnEmptyReport) {
    OpenPivot();
    for (const char* kind : {"", "centerpivot", "solidset"}) {
        Program().testKind = kind;
        window.Form_Load();
        const Lines said = Said();
        EXPECT_NE(std::ranges::find(said, "status Current File: "), said.end()) << kind;
        EXPECT_EQ(reportBox.Text(), "") << kind;
        EXPECT_TRUE(reportBox.IsReadOnly()) << kind;
    }
}

TEST_F(FrmReport, NoFileIsTheCurrentOneOfAnotherKind) {
    Program().testKind = "none";
    Program().solidSetFile = "/a/b.ssd";
    window.mnuRefreshReport_Click();
    Program().solidSetFile.clear();
    Program().centerPivotFile = "/a/b.cpd";
    window.mnuRefreshReport_Click();
    EXPECT_EQ(Said(), (Lines{"status Current File: ", "status Current File: "}));
}

TEST_F(FrmReport, KeptNumbersAreSinglesWithAPoint) {
    UseNumberLocale(GermanNumbers());
    left = 1500.5F;
    top = -30;
    width = 10000;
    height = 8000;
    window.Form_Unload();
    EXPECT_EQ(Said(), (Lines{"keep Settings/MainLeft 1500.5", "keep Settings/MainTop -30",
                             "keep Settings/MainWidth 10000", "keep Settings/MainHeight 8000"}));
    left = top = width = height = 0;
    Program().testKind = "";
    window.Form_Load();
    Said();
    EXPECT_EQ(left, 1500.5F);
    EXPECT_EQ(top, -30);
    EXPECT_EQ(width, 10000);
    EXPECT_EQ(height, 8000);
}

TEST_F(FrmReport, AKeptNumberThatIsNoneIsTheDefault) {
    store.values = {{"MainLeft", "left"}, {"MainTop", ""}, {"MainWidth", "1e99"}, {"MainHeight", "7000"}};
    Program().testKind = "";
    window.Form_Load();
    Said();
    EXPECT_EQ(left, 1000);
    EXPECT_EQ(top, 1000);
    EXPECT_EQ(width, 6500);
    EXPECT_EQ(height, 7000);
}

TEST_F(FrmReport, AMinimizedWindowKeepsNothingAndDoesNotResize) {
    isMinimized = true;
    width = 10;
    window.Form_Unload();
    window.Form_Resize();
    EXPECT_EQ(Said(), Lines{});
}

TEST_F(FrmReport, TheReportKeepsItsDistanceFromTheWindow) {
    window.Form_Resize();
    EXPECT_EQ(Said(), (Lines{"report 11400 by 7600"}));
}

TEST_F(FrmReport, AWindowBelowItsLeastSizeGrows) {
    height = 4199;
    width = 9659;
    window.Form_Resize();
    EXPECT_EQ(Said(), (Lines{"height 4200", "width 9660", "report 9060 by 2800"}));
    window.Form_Resize();
    EXPECT_EQ(Said(), (Lines{"report 9060 by 2800"})) << "4200 and 9660 are enough";
}

TEST_F(FrmReport, AnErrorOfResizingIsIgnored) {
    height = 100;
    resizeError = ErrorNumber::InvalidProcedureCall;
    window.Form_Resize();
    EXPECT_EQ(Said(), (Lines{"height 4200"})) << "and ends it";
}

TEST_F(FrmReport, RefreshBuildsAnewAndLocks) {
    LoadPivot();
    window.tbToolBar_ButtonClick("Lock");
    window.mnuFileClose_Click();
    Said();
    window.mnuRefreshReport_Click();
    EXPECT_EQ(Said(), (Lines{"selection size 9", "button 5 unpressed", "button 6 unpressed", "read-only",
                             "button 7 pressed", "status Current File: pivot-1978.cpd"}));
    EXPECT_TRUE(ShowsReport());
}

TEST_F(FrmReport, TheRefreshButtonBuildsTheReportOfTheTestInMemory) {
    LoadPivot();
    OpenSolid();
    window.tbToolBar_ButtonClick("Refresh");
    EXPECT_EQ(Said().back(), "status Current File: solid-set-triangle.ssd");
    EXPECT_NE(reportBox.Text().find("Solid Set Water Application Uniformity Test"), std::string::npos);
}

TEST_F(FrmReport, ARefreshedReportIsNeitherBoldNorItalic) {
    LoadPivot();
    const RichDocument fresh = reportBox.Document();
    window.tbToolBar_ButtonClick("Bold");
    window.tbToolBar_ButtonClick("Italic");
    EXPECT_NE(reportBox.Document(), fresh);
    window.mnuRefreshReport_Click();
    Said();
    EXPECT_EQ(reportBox.Document(), fresh);
}

TEST_F(FrmReport, TheWholeReportIsInOneFontThatTypingGoesOnWith) {
    LoadPivot();
    CharacterFormat format;
    for (const Paragraph& paragraph : reportBox.Document().paragraphs) {
        for (const TextRun& run : paragraph.runs) {
            format = run.format;
            format.color.reset();
            ASSERT_EQ(format, (CharacterFormat{.font = "Courier New", .halfPoints = 18, .color = {}}));
        }
    }
    EXPECT_EQ(reportBox.SelectionStart(), 0U);
    EXPECT_EQ(reportBox.SelectionLength(), 0U);
    Program().testKind = "none";
    reportBox.SetText("");
    reportBox.SetFontName("Other");
    window.Form_Load();
    Said();
    reportBox.SetText("typed");
    EXPECT_EQ(reportBox.Document().paragraphs.at(0).runs.at(0).format.font, "Courier New");
}

TEST_F(FrmReport, RefreshOfAnotherKindChangesTheStatusOnly) {
    LoadPivot();
    Program().testKind = "none";
    window.tbToolBar_ButtonClick("Refresh");
    EXPECT_EQ(Said(), (Lines{"status Current File: "}));
    EXPECT_TRUE(ShowsReport());
}

TEST_F(FrmReport, AskingAgainBuildsAnewAndLocks) {
    LoadPivot();
    OpenSolid();
    window.tbToolBar_ButtonClick("Lock");
    window.ShowAgain();
    EXPECT_EQ(Said().back(), "button 7 pressed");
    EXPECT_TRUE(reportBox.IsReadOnly());
    EXPECT_NE(reportBox.Text().find("Solid Set Water Application Uniformity Test"), std::string::npos);

    Program().testKind = "none";
    window.tbToolBar_ButtonClick("Lock");
    window.ShowAgain();
    EXPECT_TRUE(reportBox.IsReadOnly());
    Said();
}

TEST_F(FrmReport, AnErrorInTheDataShowsOneSentence) {
    OpenPivot();
    Program().centerPivotTest.ClientName = "";
    window.Form_Load();
    Said();
    EXPECT_EQ(reportBox.Text(), "Errors in data file - report not created.");
    EXPECT_TRUE(reportBox.IsReadOnly());
}

TEST_F(FrmReport, ARunTimeErrorOfACenterPivotBuildIsToldAndTheTextIsEmpty) {
    LoadPivot();
    Program().centerPivotTest.PercentTimer = "forty";
    window.mnuRefreshReport_Click();
    EXPECT_EQ(Said(), (Lines{"selection size 9", "emptied",
                             "box [Error] Sorry, an error occurred generating report...|Error Number: 13|"
                             "Error Description: Type mismatch|Error Source: ORVEL| (Ok, Critical)",
                             "button 5 unpressed", "button 6 unpressed", "read-only", "button 7 pressed",
                             "status Current File: pivot-1978.cpd"}));
    EXPECT_EQ(reportBox.Text(), "");
    EXPECT_EQ(Program().messageText, "Sorry, an error occurred generating report...\rError Number: 13\r"
                                     "Error Description: Type mismatch\rError Source: ORVEL\r");
    EXPECT_EQ(Program().messageReply, Reply::Ok);
}

TEST_F(FrmReport, ARunTimeErrorOfASolidSetBuildIsToldOnce) {
    OpenSolid();
    window.Form_Load();
    Said();
    Program().solidSetTest.NumberX = "";
    window.mnuRefreshReport_Click();
    EXPECT_EQ(Said(), (Lines{"emptied",
                             "box [Error] Sorry, an error occurred generating report...|Error Number: 13|"
                             "Error Description: Type mismatch|Error Source: ORVEL| (Ok, Critical)",
                             "button 5 unpressed", "button 6 unpressed", "read-only", "button 7 pressed",
                             "status Current File: solid-set-triangle.ssd"}));
}

TEST_F(FrmReport, OpenShowsARichTextFile) {
    LoadPivot();
    PutContents(folder / "other.rtf", R"({\rtf1 Some {\b bold} text})");
    surroundings.paths = {folder / "other.rtf"};
    window.mnuFileOpen_Click();
    EXPECT_EQ(Said(), (Lines{"open [Open File] RTF Files (*.rtf)|*.rtf; ; 0x0; ", "button 5 unpressed",
                             "button 6 unpressed", "status Current RTF File: other.rtf"}));
    EXPECT_EQ(reportBox.Text(), "Some bold text");
    EXPECT_TRUE(reportBox.IsReadOnly());

    window.mnuRefreshReport_Click();
    EXPECT_TRUE(ShowsReport());
    EXPECT_EQ(Said().back(), "status Current File: pivot-1978.cpd");
}

TEST_F(FrmReport, AnOpenedTextIsBoldAllOverAlsoAtItsLineEnds) {
    LoadPivot();
    reportBox.Select(100, 50);
    PutContents(folder / "bold.rtf", R"({\rtf1\b one\par two})");
    surroundings.paths = {folder / "bold.rtf"};
    window.mnuFileOpen_Click();
    Said();
    EXPECT_EQ(reportBox.Text(), "one\r\ntwo");
    EXPECT_EQ(reportBox.SelectionStart(), 0U);
    EXPECT_EQ(reportBox.SelectionLength(), 0U);
    window.tbToolBar_ButtonClick("Bold");
    EXPECT_EQ(Said(), (Lines{"button 5 unpressed"}));
}

TEST_F(FrmReport, AnOpenThatIsCancelledOrOfAVanishedFileChangesNothing) {
    LoadPivot();
    surroundings.paths = {{}, folder / "gone.rtf", folder.Path()};
    for (int i = 0; i < 3; ++i) {
        window.tbToolBar_ButtonClick("Open");
        EXPECT_EQ(Said().size(), 1U) << "the dialog alone";
        EXPECT_TRUE(ShowsReport());
    }
}

TEST_F(FrmReport, AFileThatCannotBeReadIsToldAndNothingChanges) {
    LoadPivot();
    // Reading the memory of a process from its beginning is an error, whoever reads.
    surroundings.paths = {"/proc/self/mem"};
    window.mnuFileOpen_Click();
    EXPECT_EQ(Said(), (Lines{"open [Open File] RTF Files (*.rtf)|*.rtf; ; 0x0; ",
                             "box [Open File] /proc/self/mem can't be opened: cannot read: Input/output "
                             "error. (Ok, Critical)"}));
    EXPECT_TRUE(ShowsReport());
}

TEST_F(FrmReport, CloseEmptiesTheTextAndKeepsTheWindow) {
    LoadPivot();
    window.mnuFileClose_Click();
    EXPECT_EQ(Said(), (Lines{"emptied"}));
    EXPECT_EQ(reportBox.Text(), "");
}

TEST_F(FrmReport, SaveAsWritesRichText) {
    LoadPivot();
    surroundings.paths = {folder / "report.rtf", folder / "again.rtf"};
    window.mnuFileSaveAs_Click();
    EXPECT_EQ(Said(), (Lines{"save [Save Report As - Enter File Name] All Files (*.rtf)|*.rtf; rtf; "
                             "0x2806; "}));
    PrintableBox read(surroundings);
    read.Load(folder / "report.rtf");
    EXPECT_EQ(read.Document(), reportBox.Document());

    window.tbToolBar_ButtonClick("Save");
    Said();
    EXPECT_EQ(Contents(folder / "again.rtf"), Contents(folder / "report.rtf"));
}

TEST_F(FrmReport, SavingAsHtmlWritesThePlainTextBetweenItsLines) {
    LoadPivot();
    reportBox.SetText("5 < 6 > 4 & more\r\nü");
    surroundings.paths = {folder / "report.html"};
    window.mnuSaveHTML_Click();
    EXPECT_EQ(Said(), (Lines{"save [Save Report as HTML] All Files (*.html)|*.html; rtf; 0x2806; "}));
    EXPECT_EQ(Contents(folder / "report.html"), "<HTML><HEAD></HEAD><PRE>\r\n\r\n5 < 6 > 4 & more\r\nü\r\n"
                                                "\r\n</PRE></BODY></HTML>\r\n");
}

TEST_F(FrmReport, ASaveThatIsCancelledWritesNothing) {
    LoadPivot();
    surroundings.paths = {{}, {}};
    window.mnuFileSaveAs_Click();
    window.mnuSaveHTML_Click();
    EXPECT_EQ(Said().size(), 2U) << "the dialogs alone";
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST_F(FrmReport, ASaveThatFailsIsToldAndTheReportStays) {
    LoadPivot();
    surroundings.paths = {folder / "none/report.rtf", folder / "none/report.html"};
    window.mnuFileSaveAs_Click();
    EXPECT_EQ(Said().at(1), kFileSaveError);
    window.mnuSaveHTML_Click();
    EXPECT_EQ(Said().at(1), kFileSaveError);
    EXPECT_TRUE(ShowsReport());
}

} // namespace

} // namespace orvel::testing
