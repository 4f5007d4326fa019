// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/frmCenterPivotData.h"

#include "core/CodePage.h"
#include "tests/entry/DataFormTest.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <set>
#include <string>

// The controls of the center-pivot window, how they are filled, and Auto Fill.
namespace orvel {

namespace {

using testing::ExpectRunTimeError;
using testing::GermanNumbers;
using testing::Lines;

class FrmCenterPivotData : public testing::DataFormTest<frmCenterPivotData> {
protected:
    static SoilIntakeRow& Soil(std::size_t row) { return Program().soilIntakeTable.at(row); }

    // Answers the question of Auto Fill and returns what was said.
    Lines AutoFill(const char* first, const char* spacing, Reply reply) {
        view.Put("txtBoxDistanceToFirstGuage", first);
        view.Put("txtBoxGuageSpacing", spacing);
        surroundings.replies = {reply};
        return SaidButCells([this] { window.cmdBtnAutoFill_Click(); });
    }

    void ExpectAutoFillRaises(ErrorNumber number, const char* first, const char* spacing) {
        ExpectRunTimeError(number, [&] { (void)AutoFill(first, spacing, Reply::Yes); });
        view.logsCells = true;
        EXPECT_EQ(Said().size(), 1U) << "it asks first";
    }

    [[nodiscard]] std::string Distance(int row) { return Grid().Cell(row, 1); }
};

TEST_F(FrmCenterPivotData, EveryTextAndFlagHasItsControl) {
    ExpectControls({"comboSoilType", "comboSoilSlope", "ComboCommonTillage", "ComboSystemManufacturer",
                    "ComboOperatingTimes", "ComboTypeSprinkler"},
                   {"FarmNameCopy"});
}

TEST_F(FrmCenterPivotData, TheListsAreThoseOfTheKind) {
    Load();
    EXPECT_EQ(view.lists.size(), 6U);
    EXPECT_EQ(view.lists["comboSoilType"],
              (Lines{"1 - Sand    (5.00 to 5.00)", "2 - Loamy Sand    (3.00 to 5.00)",
                     "3 - Sandy Loam    (2.00 to 4.00)", "4 - Loam    (1.50 to 2.25)",
                     "5 - Clay Loam    (1.00 to 1.75)", "6 - Loamy Clay    (0.75 to 1.25)",
                     "7 - Clay    (1.00 to 1.00)"}));
    EXPECT_EQ(view.lists["comboSoilSlope"],
              (Lines{"Soil Slope", "0-1 Percent", "1-3 Percent", "3> Percent", "Unknown"}));
    EXPECT_EQ(view.lists["ComboCommonTillage"],
              (Lines{"Choose Common Tillage", "Conventional", "Strip Till / Minimum Till", "No Till",
                     "Other/Unknown"}));
    EXPECT_EQ(
        view.lists["ComboSystemManufacturer"],
        (Lines{"Select Manufacturer", "Valley", "Zimmatic/Lindsay", "Reinke", "T&L", "Other", "Unknown"}));
    EXPECT_EQ(view.lists["ComboOperatingTimes"],
              (Lines{"Choose Operating Time", "Daytime Only", "Nighttime Only", "Combination Day & Night",
                     "Unknown"}));
    EXPECT_EQ(view.lists["ComboTypeSprinkler"],
              (Lines{"Select Type Sprinkler", "High Angle Impact ( >23\xB0 )", "Low Angle Impact ( <23\xB0 )",
                     "Spray/Rotator on Top", "Spray/Rotator on Drops", "LEPA", "Unknown"}));
}

TEST_F(FrmCenterPivotData, TheListsAreFilledInTheirOrder) {
    EXPECT_EQ(FilledLists(), (Lines{"comboSoilType", "comboSoilSlope", "ComboCommonTillage",
                                    "ComboSystemManufacturer", "ComboOperatingTimes", "ComboTypeSprinkler"}));
}

TEST_F(FrmCenterPivotData, TheSoilsAreThoseOfTheTable) {
    UseNumberLocale(GermanNumbers());
    Soil(2).SoilName = "  Silt";
    Soil(2).MinIntake = 0.125F;
    Soil(2).MaxIntake = 12.0F;
    Soil(3).SoilName = "";
    Soil(4).MinIntake = std::numeric_limits<float>::quiet_NaN();
    Load();
    const auto& soils = view.lists["comboSoilType"];
    ASSERT_EQ(soils.size(), 7U);
    EXPECT_EQ(soils[1], "2 - Silt    (0,13 to 12,00)");
    EXPECT_EQ(soils[2], "3 -     (2,00 to 4,00)");
    EXPECT_EQ(soils[3], "4 - Loam    ( to 2,25)");
    EXPECT_EQ(Soil(2).SoilName.Whole(), "Silt                ") << "trimmed in the table, too";
}

TEST_F(FrmCenterPivotData, TheDegreeSignIsThatOfTheCodePage) {
    UseCodePage(CodePage::Named("CP850").value());
    Load();
    EXPECT_EQ(view.lists["ComboTypeSprinkler"][1], "High Angle Impact ( >23\xF8 )");
}

TEST_F(FrmCenterPivotData, TextsAreShownAndStoredWithoutSurroundingBlanks) {
    ExpectTextsShownAndStored();
}

TEST_F(FrmCenterPivotData, TheCopyOfTheFarmNameIsNotShown) {
    Main().FarmName = "Home Place";
    Main().FarmNameCopy = "Elsewhere";
    Load();
    for (const auto& [control, text] : view.Texts()) {
        EXPECT_NE(text, "Elsewhere") << control;
    }
}

TEST_F(FrmCenterPivotData, AStoredTextThatIsInNoListShows) {
    Main().SoilType = "Choose Soil Type";
    Main().TypeSprinkler = "Water cannon";
    Load();
    EXPECT_EQ(view.Text("comboSoilType"), "Choose Soil Type");
    EXPECT_EQ(view.Text("ComboTypeSprinkler"), "Water cannon");
}

TEST_F(FrmCenterPivotData, FlagsShowAsCheckBoxes) {
    Main().HasEndGun = true;
    Main().ObservedLeaks.Stored::operator=(std::int16_t{5});
    Load();
    EXPECT_EQ(view.checks.size(), 3U);
    EXPECT_EQ(view.checks["chkBoxHasEndGun"], true);
    EXPECT_EQ(view.checks["chkBoxEndGunShutoff"], false);
    EXPECT_EQ(view.checks["chkBoxObservedLeaks"], true);
}

TEST_F(FrmCenterPivotData, TheseBoxesHaveALengthLimit) {
    Load();
    Limits limits = SharedLimits();
    limits["txtBoxOtherComments"] = 2000;
    limits["txtBoxSystemAge"] = 25;
    ExpectLimits(limits);
}

TEST_F(FrmCenterPivotData, ClientNameAndFarmNameLookAfterEachOther) {
    Load();
    const std::string name = TextOfLength(35);
    for (const auto& [typed, other] :
         {std::pair{"txtBoxClientName", "txtBoxFarmName"}, std::pair{"txtBoxFarmName", "txtBoxClientName"}}) {
        view.Put(other, name + "xyz");
        view.SetText(typed, "a");
        EXPECT_EQ(Said(), (Lines{"box [Input Error] Maximim Characters in this field is 35 (Ok)"}));
        EXPECT_EQ(view.Text(other), name);
        EXPECT_EQ(view.Text(typed), "a");
    }
}

TEST_F(FrmCenterPivotData, OtherCommentsOf2500CharactersAreCutTo2000) {
    Load();
    const std::string comments = TextOfLength(2500);
    view.SetText("txtBoxOtherComments", comments);
    EXPECT_EQ(Said(), (Lines{"box [Input Error] Maximim Characters in this field is 2000 (Ok)"}));
    EXPECT_EQ(view.Text("txtBoxOtherComments"), comments.substr(0, 2000));
}

TEST_F(FrmCenterPivotData, TheseBoxesTakeNumbersOnly) {
    ExpectNumberBoxes({"txtBoxDistanceToTower", "txtBoxEstFlowRate", "txtBoxMeasuredFlowRate",
                       "txtBoxEstimatedPressure", "txtBoxMeasuredPressure", "txtBoxEndGunArc",
                       "txtBoxPercentTimer", "txtBoxGuageDiameter", "txtBoxRadLastSprinkler",
                       "txtBoxDistanceToFirstGuage", "txtBoxGuageSpacing", "txtBoxTotalAcres",
                       "txtBoxEndGunAcres", "txtBoxTravelSpeedFeet", "txtBoxTravelSpeedMinutes",
                       "txtBoxTravelSpeedSeconds", "txtBoxLengthOverhang", "txtBoxEndGunRadius"});
}

TEST_F(FrmCenterPivotData, MeasurementsShowAsDistancesAndWholeVolumes) {
    Main().Gauges[1].Footage = 32.5F;
    Main().Gauges[1].Volume = 12.6F;
    Main().Gauges[2].Volume = 0.4F;
    Main().Gauges[3].Footage = std::numeric_limits<float>::infinity();
    Main().Gauges[3].Volume = std::numeric_limits<float>::quiet_NaN();
    Main().Gauges[300].Footage = 7575.0F;
    Main().Gauges[300].Volume = 7.0F;
    Main().Gauges[4].Sequence = 44.0F;
    Load();
    EXPECT_EQ(Distance(1), "32.5");
    EXPECT_EQ(Volume(1), "13");
    EXPECT_EQ(Distance(2), "");
    EXPECT_EQ(Volume(2), "00");
    EXPECT_EQ(Distance(3), "");
    EXPECT_EQ(Volume(3), "");
    EXPECT_EQ(Distance(300), "7575");
    EXPECT_EQ(Volume(300), "07");
    EXPECT_EQ(Grid().Cell(4, 0), "4") << "the number of the row";
}

TEST_F(FrmCenterPivotData, AutoFillAsksWithTheTextsOfItsBoxes) {
    Load();
    for (const Reply reply : {Reply::No, Reply::Cancel, Reply::None}) {
        EXPECT_EQ(AutoFill("abc ", "", reply),
                  (Lines{"box [Auto Complete Entries] Would you like to Automatically Enter Measurements|"
                         "  First Cup = abc  feet|  Cup Spacing =  feet| (YesNoCancel)"}));
        EXPECT_EQ(Distance(1), "");
    }
}

TEST_F(FrmCenterPivotData, AutoFillWritesAllDistancesAndNothingElse) {
    Load();
    EXPECT_EQ(AutoFill("100", "25", Reply::Yes).size(), 1U);
    for (int row = 1; row <= 300; ++row) {
        EXPECT_EQ(Distance(row), std::to_string(75 + 25 * row));
        EXPECT_EQ(Volume(row), "");
        EXPECT_EQ(Grid().Cell(row, 0), std::to_string(row));
    }
    EXPECT_EQ(Distance(300), "7575");
    EXPECT_EQ(Distance(0), "Distance Feet");
}

TEST_F(FrmCenterPivotData, AutoFillRoundsHalvesToEven) {
    Load();
    EXPECT_EQ(AutoFill("32.5", "2.5", Reply::Yes).size(), 1U);
    EXPECT_EQ(Distance(1), "32");
    EXPECT_EQ(Distance(2), "34");
    UseNumberLocale(GermanNumbers());
    EXPECT_EQ(AutoFill("33,5", "-3,5", Reply::Yes).size(), 1U);
    EXPECT_EQ(Distance(1), "34");
    EXPECT_EQ(Distance(2), "30");
    EXPECT_EQ(Distance(10), "-2");
}

TEST_F(FrmCenterPivotData, AutoFillWithoutTwoNumbersEndsBeforeItFills) {
    Load();
    PutCell(1, 1, "9");
    for (const char* text : {"", "  ", "abc", "1.2.3", "."}) {
        ExpectAutoFillRaises(ErrorNumber::TypeMismatch, text, "25");
        ExpectAutoFillRaises(ErrorNumber::TypeMismatch, "100", text);
    }
    ExpectAutoFillRaises(ErrorNumber::Overflow, "2147483648", "1");
    ExpectAutoFillRaises(ErrorNumber::Overflow, "1", "2147483648");
    EXPECT_EQ(Distance(1), "9");
    EXPECT_EQ(Distance(2), "");
}

TEST_F(FrmCenterPivotData, AutoFillOverflowsWithItsRunningDistance) {
    Load();
    ExpectAutoFillRaises(ErrorNumber::Overflow, "2147483647", "1");
    EXPECT_EQ(Distance(1), "2147483647");
    EXPECT_EQ(Distance(2), "");
    // 300 * 7158278 = 2147483400: row 300 has 2147483398, and what is added behind it does not fit.
    ExpectAutoFillRaises(ErrorNumber::Overflow, "7158276", "7158278");
    EXPECT_EQ(Distance(300), "2147483398");
    EXPECT_EQ(AutoFill("247", "7158278", Reply::Yes).size(), 1U) << "the last sum is the largest number";
    EXPECT_EQ(Distance(300), "2140325369");
}

} // namespace

} // namespace orvel
