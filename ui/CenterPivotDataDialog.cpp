// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/CenterPivotDataDialog.h"

#include "entry/frmCenterPivotData.h"
#include "ui/UncaughtError.h"

namespace orvel::ui {

CenterPivotDataDialog::CenterPivotDataDialog(QWidget* parent, ProgramWindows& windows) : DataDialog(parent) {
    setObjectName("frmCenterPivotData");
    setWindowTitle("Center Pivot Data Entry");
    auto ofWindow = std::make_unique<frmCenterPivotData>(AsView(), windows);
    frmCenterPivotData& logic = *ofWindow;
    Begin(std::move(ofWindow));
    AddClientPage();
    AddFieldPage("Estimated Acres:");
    AddSystemPage();
    AddTestPage();
    AddCommentsPage();
    End([&logic] { Run([&logic] { logic.cmdBtnSaveAs_Click(); }); });
}

void CenterPivotDataDialog::AddSystemPage() {
    AddPage({"S&ystem Information",
             {NewColumn({
                  NewFields({
                      {"ComboSystemManufacturer", "System Manufacturer:"},
                      {"txtBoxSystemAge", "System Age:"},
                      {"ComboTypeSprinkler", "Type Sprinkler:"},
                      {"txtBoxSprinklerAge", "Sprinker Age:"},
                  }),
                  NewFrame("System Length Information",
                           NewFields({
                               {"txtBoxDistanceToTower", "Distance to Last Tower (feet):"},
                               {"txtBoxLengthOverhang", "End Gun Overhang (feet):"},
                               {"txtBoxEndGunRadius", "End Gun Radius (feet):"},
                               {"txtBoxRadLastSprinkler", "Radius of Last Sprinkler (feet):"},
                           })),
              }),
              NewColumn({
                  NewFields({
                      {"txtBoxEstFlowRate", "Estimated Flow Rate (GPM):"},
                      {"txtBoxMeasuredFlowRate", "Measured Flow Rate (GPM):"},
                      {"txtBoxEstimatedPressure", "Estimated Pressure:"},
                      {"txtBoxMeasuredPressure", "Measured Pressure:"},
                      {"chkBoxObservedLeaks", "Leaks Observed"},
                      {"chkBoxHasEndGun", "Has End Gun"},
                      {"chkBoxEndGunShutoff", "Has End Gun Shutoff"},
                      {"txtBoxEndGunArc", "End Gun Arc:"},
                      {"txtBoxEndGunAcres", "Estimated Acres - End Gun:"},
                  }),
              })},
             NewFields({{"txtBoxSystemComments", "Comments:", "System Comments:"}})});
}

void CenterPivotDataDialog::AddTestPage() {
    QWidget* entries = NewColumn({
        NewFields({
            {"txtBoxDateofTest", "Date of Test:"},
            {"ComboOperatingTimes", "Operation Times:"},
            {"txtBoxPercentTimer", "Percent Timer Setting:"},
        }),
        NewFrame("Travel of Last Tower", NewLine({
                                             {"txtBoxTravelSpeedFeet", "Distance in Feet:"},
                                             {"txtBoxTravelSpeedMinutes", "In Minutes:"},
                                             {"txtBoxTravelSpeedSeconds", "and Seconds:"},
                                         })),
        NewFieldsToFill({
            {"txtBoxGuageDiameter", "Rain Gauge Diameter (cm):"},
            {"txtBoxDistanceToFirstGuage", "Distance to First Gauge (feet):"},
            {"txtBoxGuageSpacing", "Gauge Spacing (feet):"},
        }),
        NewTips(),
    });
    AddPage({"&Test Data", {entries, NewGrid()}});
}

} // namespace orvel::ui
