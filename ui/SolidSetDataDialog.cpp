// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/SolidSetDataDialog.h"

#include "entry/frmSolidSetData.h"

namespace orvel::ui {

namespace {

void AddSystemPage(DataPages& pages) {
    pages.AddPage({"S&ystem Information",
                   {NewColumn({
                        pages.NewFields({
                            {"ComboSystemManufacturer", "Sprinkler Manufacturer:"},
                            {"txtBoxSprinklerAge", "Sprinker Age:"},
                            {"txtBoxSprinklerSpacing", "Sprinkler Spacing:"},
                        }),
                        NewFrame("Sprinkler Head Configuration", pages.NewFields({
                                                                     {"optBtnTriangle", "Triangular Spacing"},
                                                                     {"optBtnSquare", "Square Spacing"},
                                                                 })),
                    }),
                    NewColumn({
                        pages.NewFields({
                            {"txtBoxEstFlowRate", "Estimated Flow Rate:"},
                            {"txtBoxMeasuredFlowRate", "Measured Flow Rate:"},
                            {"txtBoxEstimatedPressure", "Estimated Pressure:"},
                            {"txtBoxMeasuredPressure", "Measured Pressure:"},
                            {"chkBoxObservedLeaks", "Leaks Observed"},
                        }),
                    })},
                   pages.NewFields({{"txtBoxSystemComments", "Comments:", "System Comments:"}})});
}

void AddTestPage(DataPages& pages) {
    QWidget* entries = NewColumn({
        pages.NewFieldsToFill({
            {"txtBoxDateofTest", "Date of Test:"},
            {"ComboOperatingTimes", "Operation Times:"},
            {"txtBoxDuration", "Duration of Test (minutes):"},
            {"txtBoxGuageDiameter", "Rain Gauge Diameter (cm):"},
            {"txtBoxNumberX", "Number Gauges (X Axis):"},
            {"txtBoxNumberY", "Number Gauges (Y Axis):"},
        }),
        NewTips(),
    });
    pages.AddPage({"&Test Data", {entries, pages.NewGrid()}});
}

} // namespace

SolidSetDataDialog::SolidSetDataDialog(QWidget* parent, ProgramWindows& windows)
    : DataDialog(parent, "frmSolidSetData", "Solid Set Data Entry") {
    DataPages& pages = Begin(std::make_unique<frmSolidSetData>(AsView(), windows));
    pages.AddClientPage();
    pages.AddFieldPage("Estimated Area:");
    AddSystemPage(pages);
    AddTestPage(pages);
    pages.AddCommentsPage();
    Complete(nullptr);
}

} // namespace orvel::ui
