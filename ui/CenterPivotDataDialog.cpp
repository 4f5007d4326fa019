// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/CenterPivotDataDialog.h"

#include "entry/frmCenterPivotData.h"
#include "ui/UncaughtError.h"

namespace orvel::ui {

namespace {

void AddSystemPage(DataPages& pages) {
    pages.AddPage({"S&ystem Information",
                   {NewColumn({
                        pages.NewFields({
                            {"ComboSystemManufacturer", "System Manufacturer:"},
                            {"txtBoxSystemAge", "System Age:"},
                            {"ComboTypeSprinkler", "Type Sprinkler:"},
                            {"txtBoxSprinklerAge", "Sprinker Age:"},
                        }),
                        NewFrame("System Length Information",
                                 pages.NewFields({
                                     {"txtBoxDistanceToTower", "Distance to Last Tower (feet):"},
                                     {"txtBoxLengthOverhang", "End Gun Overhang (feet):"},
                                     {"txtBoxEndGunRadius", "End Gun Radius (feet):"},
                                     {"txtBoxRadLastSprinkler", "Radius of Last Sprinkler (feet):"},
                                 })),
                    }),
                    NewColumn({
                        pages.NewFields({
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
                   pages.NewFields({{"txtBoxSystemComments", "Comments:", "System Comments:"}})});
}

void AddTestPage(DataPages& pages) {
    QWidget* entries = NewColumn({
        pages.NewFields({
            {"txtBoxDateofTest", "Date of Test:"},
            {"ComboOperatingTimes", "Operation Times:"},
            {"txtBoxPercentTimer", "Percent Timer Setting:"},
        }),
        NewFrame("Travel of Last Tower", pages.NewLine({
                                             {"txtBoxTravelSpeedFeet", "Distance in Feet:"},
                                             {"txtBoxTravelSpeedMinutes", "In Minutes:"},
                                             {"txtBoxTravelSpeedSeconds", "and Seconds:"},
                                         })),
        pages.NewFieldsToFill({
            {"txtBoxGuageDiameter", "Rain Gauge Diameter (cm):"},
            {"txtBoxDistanceToFirstGuage", "Distance to First Gauge (feet):"},
            {"txtBoxGuageSpacing", "Gauge Spacing (feet):"},
        }),
        NewTips(),
    });
    pages.AddPage({"&Test Data", {entries, pages.NewGrid()}});
}

} // namespace

CenterPivotDataDialog::CenterPivotDataDialog(QWidget* parent, ProgramWindows& windows)
    : DataDialog(parent, "frmCenterPivotData", "Center Pivot Data Entry") {
    auto ofWindow = std::make_unique<frmCenterPivotData>(AsView(), windows);
    frmCenterPivotData& logic = *ofWindow;
    DataPages& pages = Begin(std::move(ofWindow));
    pages.AddClientPage();
    pages.AddFieldPage("Estimated Acres:");
    AddSystemPage(pages);
    AddTestPage(pages);
    pages.AddCommentsPage();
    Complete([&logic] { Run([&logic] { logic.cmdBtnSaveAs_Click(); }); });
}

} // namespace orvel::ui
