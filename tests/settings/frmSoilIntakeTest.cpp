// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "settings/frmSoilIntake.h"

#include "core/RecordFiles.h"
#include "tests/support/TestFiles.h"
#include "tests/support/WindowTest.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace orvel {

namespace {

using testing::Contents;
using testing::ExpectRunTimeError;
using testing::GermanNumbers;
using testing::Lines;

class FrmSoilIntake : public testing::FormTest<frmSoilIntake> {
protected:
    FrmSoilIntake() {
        Program().programDirectory = folder.Path();
        LoadSoilTable();
        before = Contents(folder / "soil.dat");
    }

    [[nodiscard]] std::string Row(std::size_t row) const {
        return form.Text(frmSoilIntake::SoilBox(row)) + " " + form.Text(frmSoilIntake::MinBox(row)) + " " +
               form.Text(frmSoilIntake::MaxBox(row));
    }
    static SoilIntakeRow& Soil(std::size_t row) { return Program().soilIntakeTable.at(row); }
    [[nodiscard]] std::string File() const { return Contents(folder / "soil.dat"); }

    testing::TemporaryFolder folder;
    std::string before;
};

TEST_F(FrmSoilIntake, LoadingShowsTheTable) {
    window.Form_Load();
    EXPECT_EQ(form.texts.size(), 21U);
    EXPECT_EQ(Row(1), "Sand 5.00 5.00");
    EXPECT_EQ(Row(4), "Loam 1.50 2.25");
    EXPECT_EQ(Row(6), "Loamy Clay 0.75 1.25");
    EXPECT_EQ(Row(7), "Clay 1.00 1.00");
}

TEST_F(FrmSoilIntake, ARateThatIsNoNumberShowsNothing) {
    Soil(2).MinIntake = std::numeric_limits<float>::quiet_NaN();
    Soil(2).MaxIntake = std::numeric_limits<float>::infinity();
    window.Form_Load();
    EXPECT_EQ(Row(2), "Loamy Sand  ");
}

TEST_F(FrmSoilIntake, SavingAnUnchangedTableWritesTheSameBytes) {
    window.Form_Load();
    std::filesystem::remove(folder / "soil.dat");
    window.cmdBtnSave_Click();
    EXPECT_EQ(Said(), (Lines{"unload"}));
    EXPECT_EQ(File().size(), 196U);
    EXPECT_EQ(File(), before);
}

TEST_F(FrmSoilIntake, SavingChangesFileAndTable) {
    window.Form_Load();
    Type("txtBoxSoil2", "  Silt  ");
    Type("txtBoxMin2", "0.333");
    Type("txtBoxMax7", "2");
    window.cmdBtnSave_Click();
    EXPECT_EQ(Soil(2).SoilName.Whole(), "Silt                ");
    EXPECT_EQ(Soil(2).MinIntake, 0.333F);
    EXPECT_EQ(Soil(7).MaxIntake, 2.0F);
    const SoilIntakeTable read = ReadSoilTable(folder.Path());
    EXPECT_EQ(read[2].SoilName.Trimmed(), "Silt");
    EXPECT_EQ(read[2].MinIntake, 0.333F);
    EXPECT_EQ(read[7].MaxIntake, 2.0F);
    EXPECT_EQ(read[3].SoilName.Trimmed(), "Sandy Loam");
    EXPECT_EQ(Said(), (Lines{"unload"}));
}

TEST_F(FrmSoilIntake, ARateBoxWithoutANumberCountsAsZeroAndCostsNoOtherRow) {
    window.Form_Load();
    Type("txtBoxMin1", "");
    Type("txtBoxMax1", "1..5");
    Type("txtBoxMin2", "1" + std::string(50, '0'));
    Type("txtBoxMin3", "9");
    window.cmdBtnSave_Click();
    EXPECT_EQ(Soil(1).MinIntake, 0.0F);
    EXPECT_EQ(Soil(1).MaxIntake, 0.0F);
    EXPECT_EQ(Soil(2).MinIntake, 0.0F);
    EXPECT_EQ(Soil(3).MinIntake, 9.0F);
    EXPECT_EQ(Said(), (Lines{"unload"}));
}

TEST_F(FrmSoilIntake, CancelChangesNothing) {
    window.Form_Load();
    Type("txtBoxSoil1", "Gravel");
    window.cmdBtnCancel_Click();
    EXPECT_EQ(Said(), (Lines{"unload"}));
    EXPECT_EQ(Soil(1).SoilName.Trimmed(), "Sand");
    EXPECT_EQ(File(), before);
}

TEST_F(FrmSoilIntake, ANameIsCutToItsTwentyCharacters) {
    window.Form_Load();
    Type("txtBoxSoil5", "12345678901234567890");
    window.txtBoxSoil_Change(5);
    EXPECT_EQ(Said(), Lines{});
    Type("txtBoxSoil5", "123456789012345678901");
    window.txtBoxSoil_Change(5);
    EXPECT_EQ(Said(), (Lines{"box [Input Error] Maximim Characters in this field is 20 (Ok)"}));
    EXPECT_EQ(form.texts.at("txtBoxSoil5"), "12345678901234567890");
}

TEST_F(FrmSoilIntake, TheRateBoxesTakeDigitsPointsAndBackspace) {
    for (const int key : {8, int{'.'}, int{'0'}, int{'5'}, int{'9'}}) {
        EXPECT_EQ(frmSoilIntake::RateBox_KeyPress(key), key);
    }
    beeper.Expect(4);
    for (const int key : {'a', '-', ',', ' '}) {
        EXPECT_EQ(frmSoilIntake::RateBox_KeyPress(key), 0);
    }
}

TEST_F(FrmSoilIntake, RatesFollowTheLocale) {
    UseNumberLocale(GermanNumbers());
    window.Form_Load();
    EXPECT_EQ(Row(4), "Loam 1,50 2,25");
    Type("txtBoxMin1", "2.5");
    Type("txtBoxMax1", "3,5");
    window.cmdBtnSave_Click();
    EXPECT_EQ(Soil(1).MinIntake, 2.5F) << "only the point can be typed";
    EXPECT_EQ(Soil(1).MaxIntake, 3.5F);
    Said();
}

TEST_F(FrmSoilIntake, AFailureToWriteIsNotTrapped) {
    window.Form_Load();
    Program().programDirectory = folder / "gone";
    ExpectRunTimeError(ErrorNumber::PathNotFound, [this] { window.cmdBtnSave_Click(); });
    EXPECT_EQ(Said(), Lines{});
}

} // namespace

} // namespace orvel
