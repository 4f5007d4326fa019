// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/CenterPivotDataDialog.h"

#include "tests/ui/DataDialogTest.h"

namespace orvel {

namespace {

using testing::Lines;

class CenterPivotDataDialog : public testing::DataDialogTest {
protected:
    CenterPivotDataDialog() { Open<ui::CenterPivotDataDialog>(kCenterPivot, "pivot-1978.cpd"); }
};

TEST_F(CenterPivotDataDialog, HasItsMenusAndButtons) {
    EXPECT_EQ(dialog->windowTitle(), "Center Pivot Data Entry");
    EXPECT_EQ(Items("mnuFile"), (Lines{"Save = mnuFileSave", "Save As... = mnuFileSaveAs",
                                       "Discard Changes = mnuFileDiscard", "Close Window = mnuFileClose"}));
    EXPECT_EQ(Items("mnuEdit"), (Lines{"Undo = mnuEditUndo", "Cut = mnuEditCut", "Copy = mnuEditCopy",
                                       "Paste = mnueditPaste"}));
    EXPECT_EQ(Items("mnuHelp"), (Lines{"Instructions = mnuHelpInstructions", "About = mnuHelpAbout"}));
    EXPECT_EQ(Get<QPushButton>("cmdBtnSaveAs").text().remove('&'), "Save As");
    EXPECT_EQ(Get<QPushButton>("cmdBtnCloseWithoutSaving").text().remove('&'), "Close without Saving");
    EXPECT_EQ(Get<QPushButton>("cmdBtnExitAndSave").text().remove('&'), "Save and Exit");
    EXPECT_EQ(Get<QLabel>("labelFile").text(), "pivot-1978.cpd");
}

TEST_F(CenterPivotDataDialog, HasItsPagesAndCaptions) {
    ExpectSharedPages("Estimated Acres:");
    EXPECT_EQ(Captions(2),
              (Lines{"<Has End Gun Shutoff>", "<Has End Gun>", "<Leaks Observed>",
                     "Comments:", "Distance to Last Tower (feet):", "End Gun Arc:",
                     "End Gun Overhang (feet):", "End Gun Radius (feet):", "Estimated Acres - End Gun:",
                     "Estimated Flow Rate (GPM):", "Estimated Pressure:", "Measured Flow Rate (GPM):",
                     "Measured Pressure:", "Radius of Last Sprinkler (feet):", "Sprinker Age:", "System Age:",
                     "System Manufacturer:", "Type Sprinkler:", "[System Length Information]"}));
    EXPECT_EQ(Captions(3),
              (Lines{"<Auto Fill>", "Date of Test:", "Distance in Feet:", "Distance to First Gauge (feet):",
                     "Gauge Spacing (feet):", "In Minutes:", "Operation Times:", "Percent Timer Setting:",
                     "Rain Gauge Diameter (cm):", "To Delete a Cell press F9 or the Delete Key",
                     "To Insert a Cell press F10 or the Insert Key", "[Tips]", "[Travel of Last Tower]",
                     "and Seconds:"}));
}

TEST_F(CenterPivotDataDialog, IsGoneThroughAsTheFieldSheetReads) {
    ExpectSharedOrder();
    EXPECT_EQ(
        TabOrderOfPage(2),
        (Lines{"ComboSystemManufacturer", "txtBoxSystemAge", "ComboTypeSprinkler", "txtBoxSprinklerAge",
               "txtBoxDistanceToTower", "txtBoxLengthOverhang", "txtBoxEndGunRadius",
               "txtBoxRadLastSprinkler", "txtBoxEstFlowRate", "txtBoxMeasuredFlowRate",
               "txtBoxEstimatedPressure", "txtBoxMeasuredPressure", "chkBoxObservedLeaks", "chkBoxHasEndGun",
               "chkBoxEndGunShutoff", "txtBoxEndGunArc", "txtBoxEndGunAcres", "txtBoxSystemComments"}));
    EXPECT_EQ(TabOrderOfPage(3),
              (Lines{"txtBoxDateofTest", "ComboOperatingTimes", "txtBoxPercentTimer", "txtBoxTravelSpeedFeet",
                     "txtBoxTravelSpeedMinutes", "txtBoxTravelSpeedSeconds", "txtBoxGuageDiameter",
                     "txtBoxDistanceToFirstGuage", "txtBoxGuageSpacing", "cmdBtnAutoFill", "gridTest"}));
}

TEST_F(CenterPivotDataDialog, FitsOnASmallScreen) {
    ExpectSmall();
}

TEST_F(CenterPivotDataDialog, FiltersTheKeysOfItsNumericBoxesOnly) {
    for (const char* name :
         {"txtBoxDistanceToTower", "txtBoxEstFlowRate", "txtBoxMeasuredFlowRate", "txtBoxEstimatedPressure",
          "txtBoxMeasuredPressure", "txtBoxEndGunArc", "txtBoxPercentTimer", "txtBoxGuageDiameter",
          "txtBoxRadLastSprinkler", "txtBoxDistanceToFirstGuage", "txtBoxGuageSpacing", "txtBoxTotalAcres",
          "txtBoxEndGunAcres", "txtBoxTravelSpeedFeet", "txtBoxTravelSpeedMinutes",
          "txtBoxTravelSpeedSeconds", "txtBoxLengthOverhang", "txtBoxEndGunRadius"}) {
        QLineEdit& box = Box(name);
        box.clear();
        beeper.Expect(2);
        QTest::keyClicks(&box, "1x.-.5");
        EXPECT_EQ(box.text(), "1..5") << name;
    }
    for (const char* name :
         {"txtBoxSystemAge", "txtBoxSprinklerAge", "txtBoxDateofTest", "txtBoxClientZip"}) {
        QLineEdit& box = Box(name);
        box.clear();
        QTest::keyClicks(&box, "1x-");
        EXPECT_EQ(box.text(), "1x-") << name;
    }
}

TEST_F(CenterPivotDataDialog, ShowsTheTest) {
    EXPECT_EQ(Box("txtBoxClientName").text(), "Alder Creek Farms");
    EXPECT_EQ(Get<QComboBox>("ComboTypeSprinkler").currentText(), "Low Angle Impact ( <23\u00B0 )");
    EXPECT_EQ(Get<QComboBox>("ComboTypeSprinkler").currentIndex(), 2);
    EXPECT_EQ(Get<QComboBox>("comboSoilType").currentText(), "4 - Loam    (1.50 to 2.25)");
    EXPECT_EQ(Get<QComboBox>("comboSoilType").count(), 7);
    EXPECT_TRUE(Get<QCheckBox>("chkBoxHasEndGun").isChecked());
    EXPECT_FALSE(Get<QCheckBox>("chkBoxObservedLeaks").isChecked());
    EXPECT_EQ(Table().model()->index(1, 1).data(), "207.5");
    EXPECT_EQ(Table().model()->index(1, 2).data(), "160");
    EXPECT_EQ(Table().model()->index(299, 0).data(), "300");
}

TEST_F(CenterPivotDataDialog, AGreyedCheckBoxLeavesItsField) {
    Get<QCheckBox>("chkBoxHasEndGun").setTristate();
    Get<QCheckBox>("chkBoxHasEndGun").setCheckState(Qt::PartiallyChecked);
    Get<QCheckBox>("chkBoxEndGunShutoff").setChecked(false);
    Get<QAction>("mnuFileSave").trigger();
    EXPECT_TRUE(Program().centerPivotTest.HasEndGun.IsSet());
    EXPECT_FALSE(Program().centerPivotTest.EndGunShutoff.IsSet());
    surroundings.Said();
}

TEST_F(CenterPivotDataDialog, SaveAsShowsTheNewName) {
    surroundings.paths = {folder / "other.cpd", folder / "third.cpd"};
    Click("cmdBtnSaveAs");
    EXPECT_EQ(Get<QLabel>("labelFile").text(), "other.cpd");
    Get<QAction>("mnuFileSaveAs").trigger();
    EXPECT_EQ(Get<QLabel>("labelFile").text(), "third.cpd");
    EXPECT_EQ(surroundings.Said().size(), 2U);
}

TEST_F(CenterPivotDataDialog, AutoFillAsks) {
    Pages().setCurrentIndex(3);
    surroundings.replies = {Reply::Yes};
    Box("txtBoxDistanceToFirstGuage").setText("20");
    Box("txtBoxGuageSpacing").setText("20");
    Click("cmdBtnAutoFill");
    EXPECT_EQ(surroundings.Said(),
              (Lines{"box [Auto Complete Entries] Would you like to Automatically Enter Measurements|  First "
                     "Cup = 20 feet|  Cup Spacing = 20 feet| (YesNoCancel)"}));
    EXPECT_EQ(Table().model()->index(299, 1).data(), "6000");
}

} // namespace

} // namespace orvel
