// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/frmCenterPivotData.h"

#include "tests/entry/DataWindowTest.h"
#include "tests/support/TestFiles.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <string>

// Save, Save As and what both store.
namespace orvel {

namespace {

using testing::Contents;
using testing::Example;
using testing::ExpectRunTimeError;
using testing::kFileSaveError;
using testing::Lines;
using testing::PutContents;

const std::string kCloseBox = "box [Close Window] Close data entry window? (YesNo)";

class FrmCenterPivotSave : public testing::DataWindowTest<frmCenterPivotData> {
protected:
    // A test that the data checks find no fault with; soil 4.
    FrmCenterPivotSave() { Main() = ReadTest<CenterPivotTest>(Example("pivot-1978.cpd")); }

    // The dialog's line in the log, for that initial folder.
    static std::string Dialog(const std::string& initialFolder) {
        return "save [Save Center Pivot Data As - Enter File Name] All Files (*.cpd)|*.cpd; cpd; 0x2806; " +
               initialFolder;
    }

    Lines SaveAs(const std::filesystem::path& path) {
        surroundings.paths = {path};
        return SaidButCells([this] { window.mnuFileSaveAs_Click(); });
    }

    // Saves with that soil type and gives the rates that are stored.
    std::array<float, 2> RatesOf(const char* soilType) {
        view.Put("comboSoilType", soilType);
        Save();
        EXPECT_EQ(Main().MinIntake, Saved().MinIntake);
        return {Main().MinIntake, Main().MaxIntake};
    }
};

TEST_F(FrmCenterPivotSave, OpeningAndSavingTheExampleChangesNoByte) {
    const CenterPivotTest before = Main();
    Load();
    Save();
    ExpectSameRecord(Saved(), before);
    ExpectSameRecord(Main(), before);
    EXPECT_EQ(Contents(File()), Contents(Example("pivot-1978.cpd")));
}

TEST_F(FrmCenterPivotSave, OpeningAndSavingChangesTheseBytesOnly) {
    constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
    CenterPivotTest& test = Main();
    test.FarmNameCopy = "Elsewhere";
    test.TravelSpeedSeconds = "";
    test.Reserved = std::int16_t{513};
    test.Tail.fill(std::byte{7});
    test.HasEndGun.Stored::operator=(std::int16_t{5});
    test.Gauges[0].Volume = 3.5F;
    test.Gauges[2].Sequence = 77.0F;
    test.Gauges[3].Volume = 122.6F;
    test.Gauges[3].Spare = kNaN;
    test.Gauges[4].Volume = 0.4F;
    test.Gauges[60].Sequence = 60.0F;
    test.Gauges[61].Sequence = 61.0F;
    test.Gauges[61].Footage = kNaN;
    test.Gauges[62].Volume = kNaN;
    test.Gauges[300].Sequence = 9.0F;
    test.Gauges[300].Footage = 0.1F;
    Program().soilIntakeTable[4].MaxIntake = 3.0F;

    CenterPivotTest expected = test;
    expected.FarmNameCopy = "Home Place";
    expected.TravelSpeedSeconds = "0";
    expected.HasEndGun = true;
    expected.Gauges[3].Volume = 123.0F;
    expected.Gauges[4].Volume = 0.0F;
    expected.Gauges[60].Sequence = 0.0F;
    expected.Gauges[61].Sequence = 0.0F;
    expected.Gauges[62].Volume = 0.0F;
    expected.MaxIntake = 3.0F;

    Load();
    (void)SaidButCells([this] { window.mnuFileSave_Click(); });
    ExpectSameRecord(Saved(), expected);
    ExpectSameRecord(Main(), expected);
}

TEST_F(FrmCenterPivotSave, ALongerFileKeepsItsTail) {
    PutContents(File(), Contents(Example("pivot-1978.cpd")) + "tail");
    Load();
    Save();
    EXPECT_EQ(Contents(File()), Contents(Example("pivot-1978.cpd")) + "tail");
}

TEST_F(FrmCenterPivotSave, TheCopyOfTheFarmNameIsWritten) {
    Load();
    view.Put("txtBoxFarmName", "  Hill Place ");
    Save();
    EXPECT_EQ(Saved().FarmName.Trimmed(), "Hill Place");
    EXPECT_EQ(Saved().FarmNameCopy.Whole(), "Hill Place                         ");
}

TEST_F(FrmCenterPivotSave, CheckBoxesAreStoredAndAGreyedOneLeavesItsFlag) {
    Main().ObservedLeaks.Stored::operator=(std::int16_t{5});
    Load();
    view.checks["chkBoxHasEndGun"] = false;
    view.checks["chkBoxEndGunShutoff"] = std::nullopt;
    view.checks["chkBoxObservedLeaks"] = std::nullopt;
    Save();
    EXPECT_EQ(Saved().HasEndGun.Number(), 0);
    EXPECT_EQ(Saved().EndGunShutoff.Number(), -1);
    EXPECT_EQ(Saved().ObservedLeaks.Number(), 5);
    view.checks["chkBoxObservedLeaks"] = true;
    view.checks["chkBoxEndGunShutoff"] = false;
    Save();
    EXPECT_EQ(Saved().ObservedLeaks.Number(), -1);
    EXPECT_EQ(Saved().EndGunShutoff.Number(), 0);
}

TEST_F(FrmCenterPivotSave, EmptyMinutesAndSecondsBecomeZeroInBoxAndRecord) {
    Load();
    for (const char* blank : {"", "   "}) {
        view.Put("txtBoxTravelSpeedMinutes", blank);
        view.Put("txtBoxTravelSpeedSeconds", blank);
        Save();
        EXPECT_EQ(view.Text("txtBoxTravelSpeedMinutes"), "0");
        EXPECT_EQ(view.Text("txtBoxTravelSpeedSeconds"), "0");
        EXPECT_EQ(Saved().TravelSpeedMinutes.Whole(), "0                   ");
        EXPECT_EQ(Saved().TravelSpeedSeconds.Whole(), "0                   ");
    }
    view.Put("txtBoxTravelSpeedMinutes", " 3 ");
    view.Put("txtBoxTravelSpeedSeconds", "4");
    view.Put("txtBoxTravelSpeedFeet", "  ");
    (void)SaidButCells([this] { window.mnuFileSave_Click(); });
    EXPECT_EQ(view.Text("txtBoxTravelSpeedMinutes"), " 3 ") << "the box stays as it is";
    EXPECT_EQ(Saved().TravelSpeedMinutes.Trimmed(), "3");
    EXPECT_EQ(Saved().TravelSpeedSeconds.Trimmed(), "4");
    EXPECT_TRUE(Saved().TravelSpeedFeet.IsBlank());
    EXPECT_EQ(view.Text("txtBoxTravelSpeedFeet"), "  ");
}

TEST_F(FrmCenterPivotSave, NumbersAreKeptAsTexts) {
    Load();
    view.Put("txtBoxMeasuredFlowRate", "1.2.3");
    view.Put("txtBoxEndGunArc", "12345678901234");
    (void)SaidButCells([this] { window.mnuFileSave_Click(); });
    EXPECT_EQ(Saved().MeasuredFlowRate.Trimmed(), "1.2.3");
    EXPECT_EQ(Saved().EndGunArc.Whole(), "1234567890") << "cut to the field, without a message";
}

TEST_F(FrmCenterPivotSave, AClearedDistanceZeroesTheSequenceAndKeepsTheDistance) {
    Load();
    PutCell(2, 1, "");
    PutCell(3, 2, "");
    PutCell(4, 1, "99.5");
    (void)SaidButCells([this] { window.mnuFileSave_Click(); });
    EXPECT_EQ(Saved().Gauges[2].Sequence, 0.0F);
    EXPECT_EQ(Saved().Gauges[2].Footage, 207.5F);
    EXPECT_EQ(Saved().Gauges[2].Volume, 160.0F);
    EXPECT_EQ(Saved().Gauges[3].Sequence, 3.0F);
    EXPECT_EQ(Saved().Gauges[3].Volume, 0.0F);
    EXPECT_EQ(Volume(3), "0");
    EXPECT_EQ(Saved().Gauges[4].Sequence, 4.0F);
    EXPECT_EQ(Saved().Gauges[4].Footage, 99.5F);
}

TEST_F(FrmCenterPivotSave, TheIntakeRatesAreThoseOfTheChosenSoil) {
    Load();
    EXPECT_EQ(RatesOf("3 - Sandy Loam    (2.00 to 4.00)"), (std::array{2.0F, 4.0F}));
    EXPECT_EQ(RatesOf("  1"), (std::array{5.0F, 5.0F}));
    EXPECT_EQ(RatesOf("7abc"), (std::array{1.0F, 1.0F}));
    EXPECT_EQ(RatesOf("61 - only the first character counts"), (std::array{0.75F, 1.25F}));
    for (const char* other : {"8 - Rock", "9", "0 - Dust", "", "   "}) {
        EXPECT_EQ(RatesOf(other), (std::array{0.75F, 1.25F})) << other;
    }
}

TEST_F(FrmCenterPivotSave, ASoilTypeWithoutANumberEndsTheSave) {
    CenterPivotTest expected = Main();
    for (int row = 1; row <= 300; ++row) {
        expected.Gauges[row].Sequence = static_cast<float>(row);
    }
    Load();
    view.Put("txtBoxClientName", "Nobody");
    view.logsCells = false;
    for (const char* soil : {"Choose Soil Type", "-1", ".5", " Loam"}) {
        view.Put("comboSoilType", soil);
        ExpectRunTimeError(ErrorNumber::TypeMismatch, [this] { window.mnuFileSave_Click(); });
        ExpectSameRecord(Main(), expected);
        EXPECT_FALSE(std::filesystem::exists(File()));
    }
    surroundings.replies = {Reply::Yes};
    ExpectRunTimeError(ErrorNumber::TypeMismatch, [this] { window.mnuFileClose_Click(); });
    EXPECT_EQ(Said(), (Lines{"box [Close Window] Save Changes to Client Data? (YesNoCancel)"}));
}

TEST_F(FrmCenterPivotSave, TheDataAreCheckedBehindTheSave) {
    Load();
    view.Put("txtBoxClientName", "");
    const std::string errors = "box [Errors in Data] You Have Errors That Will Prevent Report Creation.|\n|\n"
                               "You Should Enter the Client Name.|\n|\n|\nPlease Correct Entries. "
                               "(Ok, Critical)";
    const std::string correct =
        "box [Error in Data] Please Correct Errors Before Producing Report. (Ok, Critical)";
    const auto save = [this] { window.mnuFileSave_Click(); };
    EXPECT_EQ(SaidButCells(save), (Lines{errors, correct}));
    EXPECT_TRUE(Saved().ClientName.IsBlank());
    EXPECT_EQ(Saved().FarmName.Trimmed(), "Home Place");
    surroundings.replies = {Reply::No};
    EXPECT_EQ(SaidButCells([this] { window.cmdBtnExitAndSave_Click(); }),
              (Lines{errors, correct, kCloseBox}));
    view.Put("txtBoxClientName", "Ann");
    EXPECT_EQ(SaidButCells(save), Lines{});
}

TEST_F(FrmCenterPivotSave, AWarningOfTheChecksIsNoError) {
    Load();
    PutCell(2, 2, "");
    const Lines said = SaidButCells([this] { window.mnuFileSave_Click(); });
    ASSERT_EQ(said.size(), 1U);
    EXPECT_TRUE(said[0].starts_with("box [Possible Errors in Data] ")) << said[0];
}

TEST_F(FrmCenterPivotSave, TheFileIsWrittenBeforeTheChecks) {
    Load();
    NumberCells(kVolume, 0); // more readings than the checks can count
    ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange, [this] { window.mnuFileSave_Click(); });
    EXPECT_EQ(Saved().Gauges[300].Volume, 300.0F);
    view.Put("txtBoxClientName", "");
    Program().centerPivotFile = folder / "gone" / "test.cpd";
    EXPECT_EQ(SaidButCells([this] { window.mnuFileSave_Click(); }), (Lines{kFileSaveError}))
        << "no check of what was not written";
}

TEST_F(FrmCenterPivotSave, SaveAsWritesAnotherFileWhichBecomesTheCurrentOne) {
    PutContents(File(), "old");
    Load();
    view.Put("txtBoxClientName", "");
    Program().userSettings.DefaultDirectory = "  " + folder.Path().string();
    for (const bool isButton : {false, true}) {
        const std::string name = isButton ? "b.cpd" : "a.cpd";
        surroundings.paths = {folder / name};
        EXPECT_EQ(SaidButCells([this, isButton] {
                      if (isButton) {
                          window.cmdBtnSaveAs_Click();
                      } else {
                          window.mnuFileSaveAs_Click();
                      }
                  }),
                  (Lines{Dialog(folder.Path().string())}))
            << "and no check, though the name is missing";
        EXPECT_EQ(Program().centerPivotFile, folder / name);
        EXPECT_EQ(view.Text("labelFile"), name);
        const auto written = ReadTest<CenterPivotTest>(folder / name);
        ExpectSameRecord(written, Main());
        EXPECT_TRUE(written.ClientName.IsBlank());
    }
    EXPECT_EQ(Contents(File()), "old");
    view.Put("txtBoxClientName", "Ann");
    Save();
    EXPECT_EQ(ReadTest<CenterPivotTest>(folder / "b.cpd").ClientName.Trimmed(), "Ann");
    EXPECT_EQ(Program().userSettings.DefaultDirectory.Trimmed(), folder.Path().string())
        << "trimmed in the record";
}

TEST_F(FrmCenterPivotSave, ACancelledSaveAsLeavesTheFileButNotTheProgramsRecord) {
    Load();
    view.Put("txtBoxClientName", "Ann");
    view.Put("labelFile", "as it was");
    Program().userSettings.DefaultDirectory = (folder / "none").string();
    EXPECT_EQ(SaveAs({}), (Lines{Dialog("")})) << "there is no such folder";
    Program().userSettings.DefaultDirectory = "";
    EXPECT_EQ(SaveAs({}), (Lines{Dialog("")}));
    EXPECT_EQ(Main().ClientName.Trimmed(), "Ann");
    EXPECT_EQ(Program().centerPivotFile, File());
    EXPECT_EQ(view.Text("labelFile"), "as it was");
    EXPECT_EQ(folder.Names(), Lines{});
}

TEST_F(FrmCenterPivotSave, ASaveAsThatCannotWriteLeavesPathAndLabel) {
    Load();
    view.Put("txtBoxClientName", "Ann");
    EXPECT_EQ(SaveAs(folder / "none" / "a.cpd"), (Lines{Dialog(""), kFileSaveError}));
    EXPECT_EQ(Program().centerPivotFile, File());
    EXPECT_EQ(view.Text("labelFile"), "test.cpd");
    EXPECT_EQ(Main().ClientName.Trimmed(), "Ann");
}

TEST_F(FrmCenterPivotSave, ASaveAsThatWroteTakesTheRecoveryFileWithIt) {
    Load();
    view.Put("txtBoxClientName", "Ann");
    KeepOpenEntries();
    PutContents(folder / "a.cpd", "another test");
    PutContents(folder / "a.cpd.recovery", "of that test");
    PutContents(folder / "test.cpd.recovery-1", "what nobody wanted");
    EXPECT_EQ(SaveAs({}), (Lines{Dialog("")}));
    EXPECT_EQ(SaveAs(folder / "none" / "a.cpd"), (Lines{Dialog(""), kFileSaveError}));
    EXPECT_EQ(folder.Names(), (Lines{"a.cpd", "a.cpd.recovery", "test.cpd.recovery", "test.cpd.recovery-1"}))
        << "neither cancelled nor failed";
    EXPECT_EQ(SaveAs(folder / "a.cpd"), (Lines{Dialog("")}));
    EXPECT_EQ(folder.Names(), (Lines{"a.cpd", "a.cpd.recovery-1"}));
    EXPECT_EQ(Contents(folder / "a.cpd.recovery-1"), "of that test");
    KeepOpenEntries();
    EXPECT_EQ(folder.Names(), (Lines{"a.cpd", "a.cpd.recovery-1"})) << "nothing was typed since";
    view.Put("txtBoxClientName", "Bob");
    KeepOpenEntries();
    EXPECT_EQ(folder.Names(), (Lines{"a.cpd", "a.cpd.recovery", "a.cpd.recovery-1"}));
    Save();
    EXPECT_EQ(folder.Names(), (Lines{"a.cpd"}));
}

TEST_F(FrmCenterPivotSave, ASaveAsUnderTheNameOfItsRecoveryFileKeepsTheTest) {
    Load();
    view.Put("txtBoxClientName", "Ann");
    KeepOpenEntries();
    ASSERT_EQ(folder.Names(), (Lines{"test.cpd.recovery"}));
    EXPECT_EQ(SaveAs(folder / "test.cpd.recovery"), (Lines{Dialog("")}));
    EXPECT_EQ(folder.Names(), (Lines{"test.cpd.recovery"}));
    EXPECT_EQ(ReadTest<CenterPivotTest>(folder / "test.cpd.recovery").ClientName.Trimmed(), "Ann");
}

TEST_F(FrmCenterPivotSave, ASaveAsOfWhatIsNoNumberShowsTheBoxAndNoDialog) {
    Load();
    view.Put("comboSoilType", "Choose Soil Type");
    EXPECT_EQ(SaidButCells([this] { window.mnuFileSaveAs_Click(); }), (Lines{kFileSaveError}));
    view.Put("comboSoilType", "");
    PutCell(5, 2, ".");
    EXPECT_EQ(SaidButCells([this] { window.cmdBtnSaveAs_Click(); }), (Lines{kFileSaveError}));
    EXPECT_EQ(folder.Names(), Lines{});
}

TEST_F(FrmCenterPivotSave, AStoreThatFailsLeavesRowNumbersInTheProgramsRecord) {
    for (int row = 1; row <= 300; ++row) {
        Main().Gauges[row].Sequence = 1000.0F;
    }
    CenterPivotTest expected = Main();
    Load();
    view.Put("txtBoxClientName", "Nobody");
    PutCell(4, 2, "99");
    PutCell(5, 2, ".");
    EXPECT_EQ(SaidButCells([this] { window.mnuFileSaveAs_Click(); }), (Lines{kFileSaveError}));
    for (int row = 1; row <= 5; ++row) {
        expected.Gauges[row].Sequence = static_cast<float>(row);
    }
    ExpectSameRecord(Main(), expected);
    PutCell(5, 2, "5");
    (void)SaidButCells([this] { window.mnuFileSave_Click(); });
    EXPECT_EQ(Saved().Gauges[4].Sequence, 1000.0F) << "the edit copy has its own";
}

} // namespace

} // namespace orvel
