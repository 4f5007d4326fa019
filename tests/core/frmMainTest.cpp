// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/frmMain.h"

#include "core/RecordFiles.h"
#include "tests/support/CompleteUserSettings.h"
#include "tests/support/TestFiles.h"
#include "tests/support/WindowTest.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace orvel {

namespace {

using testing::Contents;
using testing::ExpectRunTimeError;
using testing::kFileSaveError;
using testing::Lines;
using testing::PutContents;
using testing::TemporaryFolder;

// The main window as it stands after start-up, with a complete user.usr in the program directory, which is
// the default directory too.
class FrmMain : public testing::WindowTest, private frmMain::View {
protected:
    FrmMain() {
        Program().programDirectory = folder.Path();
        UserSettings settings = testing::CompleteUserSettings();
        settings.DefaultDirectory = folder.Path().string();
        SaveUserSettings(settings);
    }

    void Load() {
        window.Form_Load();
        EXPECT_EQ(Said(), (Lines{"check OptBtnCenterPivot", "status Open or Create New Data File to Begin"}));
    }

    void ChooseSolidSet() { window.OptBtnSolidSet_Click(); }

    // Opens a copy of an example.
    std::filesystem::path OpenExample(const std::string& name) {
        const std::filesystem::path file = folder / name;
        std::filesystem::copy_file(testing::Example(name), file);
        window.OpenGivenFile(file);
        surroundings.Said();
        return file;
    }

    [[nodiscard]] std::string In(const std::string& line) const { return line + folder.Path().string(); }

    TemporaryFolder folder;
    frmMain window{*this, surroundings};

private:
    void CheckOptBtnCenterPivot() override { surroundings.Note("check OptBtnCenterPivot"); }
    void CheckOptBtnSolidSet() override { surroundings.Note("check OptBtnSolidSet"); }
    void SetStatusText(const std::string& text) override { surroundings.Note("status " + text); }
};

TEST_F(FrmMain, LoadingReadsTheSettingsBeforeAnythingIsShown) {
    std::filesystem::remove(folder / "user.usr");
    Program().testKind = kSolidSet;
    window.Form_Load();
    EXPECT_EQ(Program().testKind, kCenterPivot);
    EXPECT_EQ(Program().userSettings.DefaultDirectory.Trimmed(), folder.Path().string().substr(0, 50));
    EXPECT_EQ(Program().soilIntakeTable[7].SoilName.Trimmed(), "Clay");
    EXPECT_EQ(Contents(folder / "soil.dat").size(), 196U);
    EXPECT_EQ(Said(),
              (Lines{"check OptBtnCenterPivot", "status Open or Create New Data File to Begin",
                     "box [User Settings Error] You need to enter a name.|You need to enter an address.|"
                     "You need to enter a City, State and Zip.|You need to enter a company or title.|"
                     "You need to enter an e-mail address.|You need to enter a telephone number.||"
                     "You Should Check Your Setup Information|"
                     "You may also change the default file location.|"
                     "Please choose 'User Settings' on the 'Window' menu. (Ok)"}));
}

TEST_F(FrmMain, SettingsThatCannotBeKeptAreToldWithTheirPlaceAndNotTrapped) {
    std::filesystem::remove(folder / "user.usr");
    std::filesystem::create_directory(folder / "user.usr");
    const std::string box = "box [ORVEL] The program can't keep its settings in " + folder.Path().string() +
                            ": cannot write to what is no file: Is a directory.|"
                            "Start it with --program-dir and a folder that it may write to. (Ok)";
    ExpectRunTimeError(ErrorNumber::PathFileAccessError, [this] { window.Form_Load(); });
    EXPECT_EQ(Said(), (Lines{box}));
    EXPECT_FALSE(std::filesystem::exists(folder / "soil.dat")) << "the user's settings come first";

    std::filesystem::remove(folder / "user.usr");
    std::filesystem::create_directory(folder / "soil.dat");
    ExpectRunTimeError(ErrorNumber::PathFileAccessError, [this] { window.Form_Load(); });
    EXPECT_EQ(Said(), (Lines{box}));
}

TEST_F(FrmMain, NewClosesFirstThenWritesTheEmptyRecordOfTheKind) {
    Load();
    OpenExample("pivot-1978.cpd");
    surroundings.paths = {folder / "new.cpd"};
    window.mnuFileNew_Click();
    EXPECT_EQ(Said(), (Lines{"status No File Open",
                             In("save [Create New Data File - Center Pivot System] "
                                "All Files (*.cpd)|*.cpd; cpd; 0x2806; "),
                             "status File: new.cpd"}));
    const auto test = ReadTest<CenterPivotTest>(folder / "new.cpd");
    EXPECT_EQ(test.SoilType.Trimmed(), "Choose Soil Type");
    EXPECT_EQ(test.CommonTillage.Trimmed(), "Choose Common Tillage");
    EXPECT_TRUE(test.ClientName.IsBlank());
    EXPECT_EQ(Contents(folder / "new.cpd").size(), 9002U);
    EXPECT_EQ(Program().centerPivotFile, folder / "new.cpd");
    EXPECT_EQ(Program().centerPivotTest.SoilType.Trimmed(), "Choose Soil Type");
}

TEST_F(FrmMain, NewOfASolidSetTest) {
    Load();
    ChooseSolidSet();
    surroundings.paths = {folder / "new.ssd"};
    window.cmdBtnNewDataFile_Click();
    EXPECT_EQ(Said(), (Lines{"status No File Open",
                             In("save [Create New Data File - Solid Set System] "
                                "All Files (*.ssd)|*.ssd; ssd; 0x2806; "),
                             "status File: new.ssd"}));
    EXPECT_EQ(Contents(folder / "new.ssd").size(), 10930U);
    const auto test = ReadTest<SolidSetTest>(folder / "new.ssd");
    EXPECT_EQ(test.CommonTillage.Trimmed(), "Conventional");
    EXPECT_EQ(test.SystemManufacturer.Trimmed(), "Sprinkler Manufacturer");
    EXPECT_EQ(Program().solidSetFile, folder / "new.ssd");
}

TEST_F(FrmMain, ANewThatIsCancelledOrFailsLeavesNoFileOpen) {
    Load();
    const auto old = OpenExample("pivot-1978.cpd");
    surroundings.paths = {{}};
    window.mnuFileNew_Click();
    EXPECT_EQ(Said().size(), 2U) << "no status but the one of closing";
    EXPECT_TRUE(Program().centerPivotFile.empty());
    EXPECT_TRUE(Program().centerPivotTest.ClientName.IsBlank());
    EXPECT_EQ(Contents(old), Contents(testing::Example("pivot-1978.cpd")));

    surroundings.paths = {folder / "none/new.cpd"};
    window.mnuFileNew_Click();
    const Lines said = Said();
    ASSERT_EQ(said.size(), 3U);
    EXPECT_EQ(said[0], "status No File Open");
    EXPECT_EQ(said[2], kFileSaveError);
    EXPECT_TRUE(Program().centerPivotFile.empty());
    EXPECT_TRUE(Program().centerPivotTest.SoilType.IsBlank());
}

TEST_F(FrmMain, OpenReadsTheRecordOfTheKind) {
    Load();
    surroundings.paths = {testing::Example("pivot-1978.cpd")};
    window.mnuFileOpen_Click();
    EXPECT_EQ(Said(), (Lines{In("open [Open Center Pivot Data] All Files (*.cpd)|*.cpd; cpd; 0x804; "),
                             "status File: pivot-1978.cpd"}));
    EXPECT_FALSE(Program().centerPivotTest.ClientName.IsBlank());

    ChooseSolidSet();
    surroundings.paths = {testing::Example("solid-set-1997.ssd")};
    window.mnuFileOpen_Click();
    EXPECT_EQ(Said(), (Lines{In("open [Open Solid Set Data] All Files (*.ssd)|*.ssd; ssd; 0x804; "),
                             "status File: solid-set-1997.ssd"}));
    EXPECT_FALSE(Program().solidSetTest.ClientName.IsBlank());
    EXPECT_TRUE(Program().centerPivotFile.empty()) << "the other one is closed";
    EXPECT_TRUE(Program().centerPivotTest.ClientName.IsBlank());
}

TEST_F(FrmMain, AnOpenThatIsCancelledOrOfAVanishedFileChangesNothing) {
    Load();
    const auto old = OpenExample("pivot-1978.cpd");
    surroundings.paths = {{}, folder / "gone.cpd", folder.Path()};
    for (int i = 0; i < 3; ++i) {
        window.mnuFileOpen_Click();
        EXPECT_EQ(Said().size(), 1U) << "the dialog alone";
        EXPECT_EQ(Program().centerPivotFile, old);
        EXPECT_FALSE(Program().centerPivotTest.ClientName.IsBlank());
    }
}

TEST_F(FrmMain, AFileOfAnyLengthAndContentIsReadAsItStands) {
    Load();
    PutContents(folder / "short.cpd", "Short");
    surroundings.paths = {folder / "short.cpd", testing::Example("solid-set-1997.ssd")};
    window.mnuFileOpen_Click();
    EXPECT_EQ(Program().centerPivotTest.ClientName.Trimmed(), "Short");
    EXPECT_TRUE(Program().centerPivotTest.SoilType.IsBlank());
    window.mnuFileOpen_Click();
    EXPECT_EQ(Program().centerPivotFile, testing::Example("solid-set-1997.ssd"));
    Said();
}

TEST_F(FrmMain, AnErrorOfReadingIsNotTrapped) {
    Load();
    // Reading the memory of a process from its beginning is an error, whoever reads.
    surroundings.paths = {"/proc/self/mem"};
    ExpectRunTimeError(ErrorNumber::DeviceIoError, [this] { window.mnuFileOpen_Click(); });
    Said();
}

TEST_F(FrmMain, CloseBlanksBothRecords) {
    Load();
    OpenExample("pivot-1978.cpd");
    Program().solidSetTest.ClientName = "left over";
    window.mnuFileClose_Click();
    EXPECT_EQ(Said(), (Lines{"status No File Open"}));
    EXPECT_TRUE(Program().centerPivotFile.empty());
    EXPECT_TRUE(Program().centerPivotTest.ClientName.IsBlank());
    EXPECT_TRUE(Program().solidSetTest.ClientName.IsBlank());
}

TEST_F(FrmMain, SaveWritesACenterPivotTest) {
    Load();
    const auto file = OpenExample("pivot-1978.cpd");
    Program().centerPivotTest.ClientName = "Somebody else";
    window.mnuFileSave_Click();
    EXPECT_EQ(ReadTest<CenterPivotTest>(file).ClientName.Trimmed(), "Somebody else");
    EXPECT_EQ(Said(), Lines{});
}

TEST_F(FrmMain, SaveWritesNothingOfASolidSetTest) {
    Load();
    const auto file = OpenExample("solid-set-1997.ssd");
    Program().solidSetTest.ClientName = "Somebody else";
    window.mnuFileSave_Click();
    EXPECT_EQ(Contents(file), Contents(testing::Example("solid-set-1997.ssd")));
    EXPECT_EQ(Said(), Lines{});
}

TEST_F(FrmMain, SaveKnowsTheSolidSetKindByAnotherNameOnly) {
    Load();
    const auto file = OpenExample("solid-set-1997.ssd");
    Program().solidSetTest.ClientName = "Somebody else";
    Program().testKind = "solidset";
    window.mnuFileSave_Click();
    EXPECT_EQ(ReadTest<SolidSetTest>(file).ClientName.Trimmed(), "Somebody else");
}

TEST_F(FrmMain, SaveWithoutAFileDoesNothing) {
    Load();
    window.mnuFileSave_Click();
    OpenExample("solid-set-1997.ssd");
    window.OptBtnCenterPivot_Click();
    window.mnuFileSave_Click();
    EXPECT_EQ(Said(), Lines{});
}

TEST_F(FrmMain, ASaveThatFailsShowsTheBoxAndKeepsTheTest) {
    Load();
    OpenExample("pivot-1978.cpd");
    const std::filesystem::path gone = folder / "gone/a.cpd";
    Program().centerPivotFile = gone;
    window.mnuFileSave_Click();
    EXPECT_EQ(Said(), (Lines{kFileSaveError}));
    EXPECT_EQ(Program().centerPivotFile, gone);
    EXPECT_FALSE(Program().centerPivotTest.ClientName.IsBlank());
}

TEST_F(FrmMain, SaveAsMakesTheChosenFileTheCurrentOne) {
    Load();
    OpenExample("pivot-1978.cpd");
    surroundings.paths = {folder / "copy.cpd"};
    window.mnuFileSaveAs_Click();
    EXPECT_EQ(Said(), (Lines{In("save [Save Center Pivot Data As - Enter File Name] "
                                "All Files (*.cpd)|*.cpd; cpd; 0x2806; "),
                             "status File: copy.cpd"}));
    EXPECT_EQ(Contents(folder / "copy.cpd"), Contents(testing::Example("pivot-1978.cpd")));
    EXPECT_EQ(Program().centerPivotFile, folder / "copy.cpd");
}

TEST_F(FrmMain, SaveAsOfASolidSetTestClosesTheOther) {
    Load();
    OpenExample("pivot-1978.cpd");
    ChooseSolidSet();
    surroundings.paths = {folder / "empty.ssd"};
    window.mnuFileSaveAs_Click();
    EXPECT_EQ(Said(), (Lines{In("save [Save Solid Set Data As - Enter File Name] "
                                "All Files (*.ssd)|*.ssd; ssd; 0x2806; "),
                             "status File: empty.ssd"}));
    EXPECT_EQ(Contents(folder / "empty.ssd").size(), 10930U);
    EXPECT_EQ(Program().solidSetFile, folder / "empty.ssd");
    EXPECT_TRUE(Program().centerPivotFile.empty());
    EXPECT_TRUE(Program().centerPivotTest.ClientName.IsBlank());
}

TEST_F(FrmMain, SaveAsOfACenterPivotTestClosesTheOther) {
    Load();
    OpenExample("solid-set-1997.ssd");
    window.OptBtnCenterPivot_Click();
    surroundings.paths = {folder / "empty.cpd"};
    window.mnuFileSaveAs_Click();
    EXPECT_EQ(Said().back(), "status File: empty.cpd");
    EXPECT_EQ(Contents(folder / "empty.cpd").size(), 9002U);
    EXPECT_TRUE(Program().solidSetFile.empty());
    EXPECT_TRUE(Program().solidSetTest.ClientName.IsBlank());
}

TEST_F(FrmMain, ASaveAsThatIsCancelledOrFailsLeavesPathRecordAndStatus) {
    Load();
    const auto file = OpenExample("pivot-1978.cpd");
    surroundings.paths = {{}, folder / "none/copy.cpd"};
    window.mnuFileSaveAs_Click();
    EXPECT_EQ(Said().size(), 1U);
    window.mnuFileSaveAs_Click();
    const Lines said = Said();
    ASSERT_EQ(said.size(), 2U);
    EXPECT_EQ(said[1], kFileSaveError);
    EXPECT_EQ(Program().centerPivotFile, file);
    EXPECT_FALSE(Program().centerPivotTest.ClientName.IsBlank());
}

TEST_F(FrmMain, DialogsOpenInTheDefaultDirectoryWhileItExists) {
    Load();
    Program().userSettings.DefaultDirectory = "  " + (folder / "gone").string();
    surroundings.paths = {{}, {}};
    window.mnuFileOpen_Click();
    EXPECT_EQ(Said(), (Lines{"open [Open Center Pivot Data] All Files (*.cpd)|*.cpd; cpd; 0x804; "}));
    std::filesystem::create_directory(folder / "gone");
    window.mnuFileOpen_Click();
    EXPECT_EQ(Said(), (Lines{"open [Open Center Pivot Data] All Files (*.cpd)|*.cpd; cpd; 0x804; " +
                             (folder / "gone").string()}));
}

TEST_F(FrmMain, TheButtonAsksBeforeItClosesAnOpenFile) {
    Load();
    const char* question = "box [Open File] Close current file and open a new file? (YesNo)";
    const auto file = OpenExample("pivot-1978.cpd");
    surroundings.replies = {Reply::No, Reply::Yes};
    window.cmdBtnOpenFile_Click();
    EXPECT_EQ(Said(), (Lines{question}));
    EXPECT_EQ(Program().centerPivotFile, file);

    surroundings.paths = {{}, {}};
    window.cmdBtnOpenFile_Click();
    const std::string dialog = In("open [Open Center Pivot Data] All Files (*.cpd)|*.cpd; cpd; 0x804; ");
    EXPECT_EQ(Said(), (Lines{question, "status No File Open", dialog}));
    EXPECT_TRUE(Program().centerPivotFile.empty());

    window.cmdBtnOpenFile_Click();
    EXPECT_EQ(Said(), (Lines{"status No File Open", dialog})) << "no question without a file";

    OpenExample("solid-set-1997.ssd");
    window.OptBtnCenterPivot_Click();
    surroundings.paths = {{}};
    window.cmdBtnOpenFile_Click();
    EXPECT_EQ(Said(), (Lines{"status No File Open", dialog})) << "none of the kind is open";
}

TEST_F(FrmMain, ActivationShowsTheOpenFileOfEitherKind) {
    Load();
    window.Form_Activate();
    EXPECT_EQ(Said(), Lines{});
    OpenExample("solid-set-1997.ssd");
    window.OptBtnCenterPivot_Click();
    window.Form_Activate();
    EXPECT_EQ(Said(), (Lines{"status File: solid-set-1997.ssd"}));
}

TEST_F(FrmMain, DataEntryOpensTheWindowOfTheKind) {
    Load();
    OpenExample("pivot-1978.cpd");
    window.mnuDataEntry_Click();
    window.cmdBtnEditExisting_Click();
    EXPECT_EQ(Said(), (Lines{"show frmCenterPivotData", "show frmCenterPivotData"}));
    OpenExample("solid-set-1997.ssd");
    window.mnuDataEntry_Click();
    window.cmdBtnEditExisting_Click();
    EXPECT_EQ(Said(), (Lines{"show frmSolidSetData", "show frmSolidSetData"}));
}

TEST_F(FrmMain, DataEntryWithoutAFileAsksUpToTwoQuestions) {
    Load();
    const char* first = "box [Open Existing File] You have not created or opened a data file.|"
                        "Would you like to open an existing file? (YesNo)";
    const char* second = "box [Create New File] Would you like to create a new file? (YesNo)";
    surroundings.replies = {Reply::No, Reply::No, Reply::Yes, Reply::No, Reply::Yes, Reply::No, Reply::No};
    surroundings.paths = {{}, {}};
    window.mnuDataEntry_Click();
    EXPECT_EQ(Said(), (Lines{first, second}));
    window.mnuDataEntry_Click();
    EXPECT_EQ(Said(),
              (Lines{first, In("open [Open Center Pivot Data] All Files (*.cpd)|*.cpd; cpd; 0x804; ")}));
    window.mnuDataEntry_Click();
    EXPECT_EQ(Said(), (Lines{first, second, "status No File Open",
                             In("save [Create New Data File - Center Pivot System] "
                                "All Files (*.cpd)|*.cpd; cpd; 0x2806; ")}));
    std::filesystem::remove(OpenExample("pivot-1978.cpd"));
    window.mnuDataEntry_Click();
    EXPECT_EQ(Said(), (Lines{first, second})) << "the file has vanished";
}

TEST_F(FrmMain, EditDataOfAFileThatIsNotThereIsRefused) {
    Load();
    const char* refusal =
        "box [No Data File Open] Please create a new file or open an existing file first (Ok)";
    window.cmdBtnEditExisting_Click();
    EXPECT_EQ(Said(), (Lines{refusal}));
    std::filesystem::remove(OpenExample("pivot-1978.cpd"));
    window.cmdBtnEditExisting_Click();
    EXPECT_EQ(Said(), (Lines{refusal}));
    OpenExample("solid-set-1997.ssd");
    window.OptBtnCenterPivot_Click();
    window.cmdBtnEditExisting_Click();
    EXPECT_EQ(Said(), (Lines{refusal})) << "the open file is of the other kind";
}

TEST_F(FrmMain, AReportNeedsAFileOfTheKind) {
    Load();
    window.mnuViewReport_Click();
    EXPECT_EQ(Said(), (Lines{"box [No Data File Open] No center pivot file loaded. "
                             "Please open existing file or create new file. (Ok)"}));
    std::filesystem::remove(OpenExample("pivot-1978.cpd")); // the record in memory is what counts
    window.mnuViewReport_Click();
    window.cmdBtnGenerateReport_Click();
    EXPECT_EQ(Said(), (Lines{"show frmReport", "show frmReport"}));
    ChooseSolidSet();
    window.cmdBtnGenerateReport_Click();
    EXPECT_EQ(Said(), (Lines{"box [No Data File Open] No solid set file loaded. "
                             "Please open existing file or create new file. (Ok)"}));
}

TEST_F(FrmMain, TheDataListingNeedsAFileOfTheKind) {
    Load();
    window.mnuDataPrint_Click();
    EXPECT_EQ(Said(), (Lines{"box [No Open File] No File is open. (Ok)"}));
    OpenExample("pivot-1978.cpd");
    window.mnuDataPrint_Click();
    EXPECT_EQ(Said(), (Lines{"view CPData"}));
    ChooseSolidSet();
    window.mnuDataPrint_Click();
    EXPECT_EQ(Said(), (Lines{"box [No Open File] No File is open. (Ok)"}));
    OpenExample("solid-set-1997.ssd");
    window.mnuDataPrint_Click();
    EXPECT_EQ(Said(), (Lines{"view SSData"}));
}

TEST_F(FrmMain, ExportWritesTheSummaryAndAnEmptyLine) {
    Load();
    const std::string dialog = In("save [Save Center Pivot Data As - Enter File Name] "
                                  "Text Files (*.txt)|*.txt; cpd; 0x2806; ");
    OpenExample("pivot-1978.cpd");
    PutContents(folder / "a.txt", "an old file that is much longer than the new one");
    surroundings.paths = {folder / "a.txt", folder / "b.txt", {}};
    window.mnuExportSummary_Click();
    EXPECT_EQ(Said(), (Lines{dialog, "center-pivot summary"}));
    EXPECT_EQ(Contents(folder / "a.txt"), "pivot\r\n\r\n");
    OpenExample("solid-set-1997.ssd");
    window.mnuExportSummary_Click();
    EXPECT_EQ(Said(), (Lines{dialog, "solid-set summary"})) << "title and extension are the same";
    EXPECT_EQ(Contents(folder / "b.txt"), "solid\r\n\r\n");
    window.mnuExportSummary_Click();
    EXPECT_EQ(Said(), (Lines{dialog}));
}

TEST_F(FrmMain, AnExportWithoutATestWritesNothing) {
    Load();
    surroundings.paths = {folder / "a.txt"};
    window.mnuExportSummary_Click();
    EXPECT_EQ(Said().size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(folder / "a.txt"));
}

TEST_F(FrmMain, AnExportThatFailsShowsTheBoxAndKeepsTheOldFile) {
    Load();
    OpenExample("pivot-1978.cpd");
    surroundings.paths = {folder / "none/a.txt"};
    window.mnuExportSummary_Click();
    const Lines said = Said();
    ASSERT_EQ(said.size(), 3U);
    EXPECT_EQ(said[2], kFileSaveError);
}

TEST_F(FrmMain, AnErrorInTheSummaryShowsTheSameBox) {
    Load();
    OpenExample("pivot-1978.cpd");
    PutContents(folder / "a.txt", "old");
    surroundings.paths = {folder / "a.txt"};
    surroundings.summaryError = ErrorNumber::TypeMismatch;
    window.mnuExportSummary_Click();
    EXPECT_EQ(Said().back(), kFileSaveError);
    EXPECT_EQ(Contents(folder / "a.txt"), "old");
}

TEST_F(FrmMain, TheOtherCommandsShowTheirWindows) {
    window.mnuSoilIntake_Click();
    window.mnuUserSettings_Click();
    window.mnuInstructions_Click();
    window.mnuHelpAbout_Click();
    window.mnuFileExit_Click();
    window.Form_Unload();
    EXPECT_EQ(Said(), (Lines{"show frmSoilIntake", "show frmUserData", "view Help", "show frmAbout", "end",
                             "unload others"}));
}

TEST_F(FrmMain, EditCommandsAreKeysOfTheFocusedControl) {
    window.mnuEditUndo_Click();
    window.mnuEditCut_Click();
    window.mnuEditCopy_Click();
    window.mnuEditPaste_Click();
    window.mnuEditPasteSpecial_Click();
    EXPECT_EQ(Said(), (Lines{"Ctrl+Z", "Ctrl+X", "Ctrl+C", "Ctrl+V"}));
}

TEST_F(FrmMain, AGivenFileIsOpenedAsItsExtensionSays) {
    Load();
    std::filesystem::copy_file(testing::Example("solid-set-1997.ssd"), folder / "TEST.SSD");
    window.OpenGivenFile(folder / "TEST.SSD");
    EXPECT_EQ(Said(), (Lines{"check OptBtnSolidSet", "status File: TEST.SSD"}));
    EXPECT_EQ(Program().testKind, kSolidSet);
    EXPECT_FALSE(Program().solidSetTest.ClientName.IsBlank());
    window.OpenGivenFile(testing::Example("pivot-1978.cpd"));
    EXPECT_EQ(Said(), (Lines{"check OptBtnCenterPivot", "status File: pivot-1978.cpd"}));
    EXPECT_EQ(Program().testKind, kCenterPivot);
}

TEST_F(FrmMain, AGivenFileThatIsNoneOrOfNoKindIsTold) {
    Load();
    PutContents(folder / "a.txt", "");
    window.OpenGivenFile(folder / "none.txt");
    window.OpenGivenFile(folder.Path());
    window.OpenGivenFile(folder / "a.txt");
    EXPECT_EQ(Said(),
              (Lines{"box [Open File] There is no file " + (folder / "none.txt").string() + ". (Ok)",
                     In("box [Open File] There is no file ") + ". (Ok)",
                     "box [Open File] a.txt is neither a center pivot (*.cpd) nor a solid set (*.ssd) "
                     "data file. (Ok)"}));
    EXPECT_TRUE(Program().centerPivotFile.empty());
}

} // namespace

} // namespace orvel
