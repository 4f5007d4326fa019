// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/SolidSetDataDialog.h"

#include "tests/ui/DataDialogTest.h"

namespace orvel {

namespace {

using testing::Lines;

class SolidSetDataDialog : public testing::DataDialogTest {
protected:
    SolidSetDataDialog() { Open<ui::SolidSetDataDialog>(kSolidSet, "solid-set-1997.ssd"); }
};

TEST_F(SolidSetDataDialog, HasItsMenusAndButtonsAndNoSaveAs) {
    EXPECT_EQ(dialog->windowTitle(), "Solid Set Data Entry");
    EXPECT_EQ(Items("mnuFile"), (Lines{"Save = mnuFileSave", "Discard Changes = mnuFileDiscard",
                                       "Close Window = mnuFileClose"}));
    EXPECT_EQ(dialog->findChild<QObject*>("cmdBtnSaveAs"), nullptr);
    EXPECT_EQ(Get<QPushButton>("cmdBtnCloseWithoutSaving").text().remove('&'), "Close without Saving");
    EXPECT_EQ(Get<QPushButton>("cmdBtnExitAndSave").text().remove('&'), "Save and Exit");
    EXPECT_EQ(Get<QLabel>("labelFile").text(), "solid-set-1997.ssd");
}

TEST_F(SolidSetDataDialog, HasItsPagesAndCaptions) {
    ExpectSharedPages("Estimated Area:");
    EXPECT_EQ(Captions(2), (Lines{"<Leaks Observed>", "<Square Spacing>", "<Triangular Spacing>", "Comments:",
                                  "Estimated Flow Rate:", "Estimated Pressure:", "Measured Flow Rate:",
                                  "Measured Pressure:", "Sprinker Age:", "Sprinkler Manufacturer:",
                                  "Sprinkler Spacing:", "[Sprinkler Head Configuration]"}));
    EXPECT_EQ(Captions(3), (Lines{"<Auto Fill>", "Date of Test:", "Duration of Test (minutes):",
                                  "Number Gauges (X Axis):", "Number Gauges (Y Axis):", "Operation Times:",
                                  "Rain Gauge Diameter (cm):", "To Delete a Cell press F9 or the Delete Key",
                                  "To Insert a Cell press F10 or the Insert Key", "[Tips]"}));
}

TEST_F(SolidSetDataDialog, IsGoneThroughAsTheFieldSheetReads) {
    ExpectSharedOrder();
    EXPECT_EQ(
        TabOrderOfPage(2),
        (Lines{"ComboSystemManufacturer", "txtBoxSprinklerAge", "txtBoxSprinklerSpacing", "optBtnTriangle",
               "optBtnSquare", "txtBoxEstFlowRate", "txtBoxMeasuredFlowRate", "txtBoxEstimatedPressure",
               "txtBoxMeasuredPressure", "chkBoxObservedLeaks", "txtBoxSystemComments"}));
    EXPECT_EQ(TabOrderOfPage(3),
              (Lines{"txtBoxDateofTest", "ComboOperatingTimes", "txtBoxDuration", "txtBoxGuageDiameter",
                     "txtBoxNumberX", "txtBoxNumberY", "cmdBtnAutoFill", "gridTest"}));
}

TEST_F(SolidSetDataDialog, FitsOnASmallScreen) {
    ExpectSmall();
}

TEST_F(SolidSetDataDialog, FiltersTheKeysOfItsNumericBoxesOnly) {
    for (const char* name : {"txtBoxEstFlowRate", "txtBoxMeasuredFlowRate", "txtBoxEstimatedPressure",
                             "txtBoxMeasuredPressure", "txtBoxGuageDiameter", "txtBoxDuration"}) {
        QLineEdit& box = Box(name);
        box.clear();
        beeper.Expect(1);
        QTest::keyClicks(&box, "1x.5");
        EXPECT_EQ(box.text(), "1.5") << name;
    }
    for (const char* name :
         {"txtBoxNumberX", "txtBoxNumberY", "txtBoxTotalAcres", "txtBoxSprinklerSpacing"}) {
        QLineEdit& box = Box(name);
        box.clear();
        QTest::keyClicks(&box, "4 by x");
        EXPECT_EQ(box.text(), "4 by x") << name;
    }
}

TEST_F(SolidSetDataDialog, ShowsTheLayoutAndSavesTheOther) {
    EXPECT_TRUE(Get<QRadioButton>("optBtnSquare").isChecked());
    Pages().setCurrentIndex(2);
    QTest::mouseClick(&Get<QRadioButton>("optBtnTriangle"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_FALSE(Get<QRadioButton>("optBtnSquare").isChecked());
    Get<QAction>("mnuFileSave").trigger();
    EXPECT_EQ(ReadTest<SolidSetTest>(file).Layout.Whole(), "T");
}

TEST_F(SolidSetDataDialog, ALayoutOfNeitherLetterShowsNeither) {
    Program().solidSetTest.Layout = "X";
    ui::SolidSetDataDialog other(nullptr, surroundings);
    EXPECT_FALSE(Find<QRadioButton>(other, "optBtnSquare").isChecked());
    EXPECT_FALSE(Find<QRadioButton>(other, "optBtnTriangle").isChecked());
}

TEST_F(SolidSetDataDialog, AutoFillSetsUpTheGrid) {
    Pages().setCurrentIndex(3);
    surroundings.replies = {Reply::Yes};
    Box("txtBoxNumberX").setText("2");
    Box("txtBoxNumberY").setText("3");
    Click("cmdBtnAutoFill");
    EXPECT_EQ(surroundings.Said().size(), 1U);
    EXPECT_EQ(Table().model()->index(5, 1).data(), "2");
    EXPECT_EQ(Table().model()->index(5, 2).data(), "3");
    EXPECT_EQ(Table().model()->index(6, 1).data(), "");
}

} // namespace

} // namespace orvel
