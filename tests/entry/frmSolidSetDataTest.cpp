// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/frmSolidSetData.h"

#include "tests/entry/DataFormTest.h"
#include "tests/support/TestFiles.h"

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string>

// The controls of the solid-set window, how they are filled and stored.
namespace orvel {

namespace {

using testing::Example;
using testing::GermanNumbers;
using testing::Lines;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

class FrmSolidSetData : public testing::DataFormTest<frmSolidSetData> {
protected:
    // Saves a test whose layout was the first, with those options, and gives the layout that is stored.
    std::string Layout(const char* before, std::optional<bool> isSquare, std::optional<bool> isTriangle) {
        Main().Layout = before;
        Load();
        view.checks["optBtnSquare"] = isSquare;
        view.checks["optBtnTriangle"] = isTriangle;
        Save();
        return std::string{Saved().Layout.Whole()};
    }

    [[nodiscard]] std::string X(int row) { return Grid().Cell(row, 1); }
    [[nodiscard]] std::string Y(int row) { return Grid().Cell(row, 2); }
};

TEST_F(FrmSolidSetData, EveryTextAndFlagHasItsControl) {
    ExpectControls({"comboSoilType", "comboSoilSlope", "ComboCommonTillage", "ComboSystemManufacturer",
                    "ComboOperatingTimes"},
                   {"Layout"});
}

TEST_F(FrmSolidSetData, TheListsAreThoseOfTheKindAndFilledInTheirOrder) {
    EXPECT_EQ(FilledLists(), (Lines{"comboSoilType", "comboSoilSlope", "ComboCommonTillage",
                                    "ComboSystemManufacturer", "ComboOperatingTimes"}));
    EXPECT_EQ(view.lists["comboSoilType"], (Lines{"Choose Soil Type", "Sand", "Loamy Sand", "Sandy Loam",
                                                  "Clay Loam", "Loamy Clay", "Clay", "Other"}));
    EXPECT_EQ(view.lists["comboSoilSlope"],
              (Lines{"Soil Slope", "0-1 Percent", "1-3 Percent", "3> Percent", "Unknown"}));
    EXPECT_EQ(view.lists["ComboCommonTillage"],
              (Lines{"Conventional", "Strip Till / Minimum Till", "No Till", "Other/Unknown"}));
    EXPECT_EQ(view.lists["ComboSystemManufacturer"], (Lines{"Sprinkler Manufacturer", "Rainbird", "Senninger",
                                                            "Nelson", "Toro", "Other", "Unknown"}));
    EXPECT_EQ(view.lists["ComboOperatingTimes"],
              (Lines{"Choose Operating Time", "Daytime Only", "Nighttime Only", "Combination Day & Night",
                     "Unknown"}));
}

TEST_F(FrmSolidSetData, TheSoilTableIsNotUsed) {
    Program().soilIntakeTable[2].SoilName = "  Silt";
    Load();
    EXPECT_EQ(view.lists["comboSoilType"][2], "Loamy Sand");
    EXPECT_EQ(Program().soilIntakeTable[2].SoilName.Whole().substr(0, 6), "  Silt");
    view.Put("comboSoilType", "Choose Soil Type");
    Save();
    EXPECT_EQ(Saved().SoilType.Trimmed(), "Choose Soil Type");
}

TEST_F(FrmSolidSetData, TextsAreShownAndStoredWithoutSurroundingBlanks) {
    ExpectTextsShownAndStored();
}

TEST_F(FrmSolidSetData, TheseBoxesHaveALengthLimit) {
    Load();
    Limits limits = SharedLimits();
    limits["txtBoxOtherComments"] = 3000;
    ExpectLimits(limits);
}

TEST_F(FrmSolidSetData, ClientNameAndFarmNameLookAfterThemselvesOnly) {
    Load();
    const std::string tooLong = TextOfLength(36);
    for (const char* control : {"txtBoxClientName", "txtBoxFarmName"}) {
        const char* other = control == std::string("txtBoxFarmName") ? "txtBoxClientName" : "txtBoxFarmName";
        view.Put(other, tooLong);
        view.SetText(control, "a");
        EXPECT_EQ(Said(), Lines{});
        EXPECT_EQ(view.Text(other), tooLong);
    }
}

TEST_F(FrmSolidSetData, OtherCommentsOf2500CharactersAreKept) {
    Load();
    const std::string comments = TextOfLength(2500);
    view.SetText("txtBoxOtherComments", comments);
    EXPECT_EQ(Said(), Lines{});
    Save();
    EXPECT_EQ(Saved().OtherComments.Trimmed(), comments);
}

TEST_F(FrmSolidSetData, TheseBoxesTakeNumbersOnly) {
    ExpectNumberBoxes({"txtBoxEstFlowRate", "txtBoxMeasuredFlowRate", "txtBoxEstimatedPressure",
                       "txtBoxMeasuredPressure", "txtBoxGuageDiameter", "txtBoxDuration"});
}

TEST_F(FrmSolidSetData, LeaksAreACheckBox) {
    Load();
    EXPECT_EQ(view.checks.at("chkBoxObservedLeaks"), false);
    EXPECT_EQ(view.checks.size(), 3U) << "with the two options of the layout";
    view.checks["chkBoxObservedLeaks"] = true;
    Save();
    EXPECT_EQ(Saved().ObservedLeaks.Number(), -1);
    view.checks["chkBoxObservedLeaks"] = false;
    Save();
    EXPECT_EQ(Saved().ObservedLeaks.Number(), 0);
    Main().ObservedLeaks.Stored::operator=(std::int16_t{5});
    Load();
    EXPECT_EQ(view.checks.at("chkBoxObservedLeaks"), true);
    view.checks["chkBoxObservedLeaks"] = std::nullopt;
    Save();
    EXPECT_EQ(Saved().ObservedLeaks.Number(), 5);
}

TEST_F(FrmSolidSetData, TheLayoutShowsAsOptions) {
    for (const char* layout : {"S", "T", " ", "s", "X"}) {
        Main().Layout = layout;
        Load();
        EXPECT_EQ(view.checks.at("optBtnSquare"), layout == std::string("S")) << layout;
        EXPECT_EQ(view.checks.at("optBtnTriangle"), layout == std::string("T")) << layout;
    }
}

TEST_F(FrmSolidSetData, TheChosenOptionIsTheLayout) {
    EXPECT_EQ(Layout("T", true, false), "S");
    EXPECT_EQ(Layout("S", false, true), "T");
    EXPECT_EQ(Layout(" ", true, true), "S") << "the square comes first";
    EXPECT_EQ(Layout("X", false, false), "X");
    EXPECT_EQ(Layout("S", false, false), "S");
    EXPECT_EQ(Layout("X", std::nullopt, std::nullopt), "X");
}

TEST_F(FrmSolidSetData, MeasurementsShowAsPositionsAndWholeVolumes) {
    SolidSetGauge& first = Main().Gauges[1];
    first.Sequence = 44.0F;
    first.XAxis = 1.5F;
    first.YAxis = 2.6F;
    first.Volume = 12.6F;
    Main().Gauges[2].XAxis = 0.4F;
    Main().Gauges[2].YAxis = 0.4F;
    Main().Gauges[2].Volume = 0.4F;
    Main().Gauges[3].XAxis = kNaN;
    Main().Gauges[3].YAxis = kNaN;
    Main().Gauges[3].Volume = std::numeric_limits<float>::infinity();
    Main().Gauges[300].XAxis = 12.0F;
    Main().Gauges[300].YAxis = 25.0F;
    Main().Gauges[300].Volume = 7.0F;
    Load();
    EXPECT_EQ(Grid().Cell(1, 0), "1") << "the number of the row";
    EXPECT_EQ(X(1) + " " + Y(1) + " " + Volume(1), "1.5 3 13");
    EXPECT_EQ(X(2) + " " + Y(2) + " " + Volume(2), "0.4  ");
    EXPECT_EQ(X(3) + Y(3) + Volume(3), "");
    EXPECT_EQ(X(300) + " " + Y(300) + " " + Volume(300), "12 25 7");
}

TEST_F(FrmSolidSetData, OpeningAndSavingTheExampleRoundsItsVolumesOnly) {
    Main() = ReadTest<SolidSetTest>(Example("solid-set-1997.ssd"));
    SolidSetTest expected = Main();
    constexpr std::array kRounded = {114.0F, 138.0F, 166.0F, 130.0F, 122.0F, 76.0F,  54.0F,  128.0F,
                                     102.0F, 52.0F,  72.0F,  104.0F, 158.0F, 130.0F, 122.0F, 172.0F};
    for (int row = 1; const float volume : kRounded) {
        expected.Gauges[row++].Volume = volume;
    }
    Load();
    Save();
    ExpectSameRecord(Saved(), expected);
    ExpectSameRecord(Main(), expected);
}

TEST_F(FrmSolidSetData, OpeningAndSavingChangesTheseBytesOnly) {
    SolidSetTest& test = Main();
    test = ReadTest<SolidSetTest>(Example("solid-set-triangle.ssd"));
    test.Reserved = std::int16_t{513};
    for (int row = 1; row <= 300; ++row) {
        test.Gauges[row] = {};
        test.Gauges[row].Sequence = 1000.0F;
        test.Gauges[row].Spare = 7.0F;
    }
    test.Gauges[0].Volume = 3.5F;
    test.Gauges[1].XAxis = 0.4F;
    test.Gauges[1].YAxis = 0.4F;
    test.Gauges[1].Volume = 0.4F;
    test.Gauges[2].XAxis = kNaN;
    test.Gauges[2].YAxis = kNaN;
    test.Gauges[2].Volume = kNaN;
    test.Gauges[300].XAxis = 2.25F;
    test.Gauges[300].YAxis = 2.5F;
    test.Gauges[300].Volume = 2.5F;

    SolidSetTest expected = test;
    for (int row = 1; row <= 300; ++row) {
        expected.Gauges[row].Sequence = 0.0F;
    }
    expected.Gauges[1].Sequence = 1.0F;
    expected.Gauges[1].YAxis = 0.0F;
    expected.Gauges[1].Volume = 0.0F;
    expected.Gauges[2].YAxis = 0.0F;
    expected.Gauges[2].Volume = 0.0F;
    expected.Gauges[300].Sequence = 300.0F;
    expected.Gauges[300].YAxis = 3.0F;
    expected.Gauges[300].Volume = 3.0F;

    Load();
    Save();
    ExpectSameRecord(Saved(), expected);
    ExpectSameRecord(Main(), expected);
    EXPECT_EQ(X(2), "");
    EXPECT_EQ(Y(2), "0") << "set in the cell, too";
    EXPECT_EQ(Volume(2), "0");
}

TEST_F(FrmSolidSetData, AClearedXZeroesTheSequenceAndKeepsX) {
    Main() = ReadTest<SolidSetTest>(Example("solid-set-1997.ssd"));
    Load();
    PutCell(6, 1, "");
    PutCell(7, 2, "");
    PutCell(8, 1, "9.5");
    Save();
    EXPECT_EQ(Saved().Gauges[6].Sequence, 0.0F);
    EXPECT_EQ(Saved().Gauges[6].XAxis, 2.0F);
    EXPECT_EQ(Saved().Gauges[6].YAxis, 2.0F);
    EXPECT_EQ(Saved().Gauges[7].Sequence, 7.0F);
    EXPECT_EQ(Saved().Gauges[7].YAxis, 0.0F);
    EXPECT_EQ(Saved().Gauges[8].XAxis, 9.5F);
}

TEST_F(FrmSolidSetData, NumbersFollowTheLocale) {
    UseNumberLocale(GermanNumbers());
    Main().Gauges[1].XAxis = 1.5F;
    Load();
    EXPECT_EQ(X(1), "1,5");
    PutCell(1, 2, "2.5");
    PutCell(1, 3, "3,5");
    Save();
    EXPECT_EQ(Saved().Gauges[1].XAxis, 1.5F);
    EXPECT_EQ(Saved().Gauges[1].YAxis, 2.5F);
    EXPECT_EQ(Saved().Gauges[1].Volume, 3.5F);
}

TEST_F(FrmSolidSetData, SaveChecksNothing) {
    Load();
    view.Put("txtBoxClientName", "");
    Save();
    EXPECT_TRUE(Saved().ClientName.IsBlank());
}

} // namespace

} // namespace orvel
