// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/SolidSetDataDialog.h"

#include "entry/frmSolidSetData.h"

namespace orvel::ui {

SolidSetDataDialog::SolidSetDataDialog(QWidget* parent, ProgramWindows& windows) : DataDialog(parent) {
    setObjectName("frmSolidSetData");
    setWindowTitle("Solid Set Data Entry");
    Begin(std::make_unique<frmSolidSetData>(AsView(), windows));
    AddClientPage();
    AddFieldPage("Estimated Area:");
    AddSystemPage();
    AddTestPage();
    AddCommentsPage();
    End(nullptr);
}

void SolidSetDataDialog::AddSystemPage() {
    AddPage({"S&ystem Information",
             {NewColumn({
                  NewFields({
                      {"ComboSystemManufacturer", "Sprinkler Manufacturer:"},
                      {"txtBoxSprinklerAge", "Sprinker Age:"},
                      {"txtBoxSprinklerSpacing", "Sprinkler Spacing:"},
                  }),
                  NewFrame("Sprinkler Head Configuration", NewFields({
                                                               {"optBtnTriangle", "Triangular Spacing"},
                                                               {"optBtnSquare", "Square Spacing"},
                                                           })),
              }),
              NewColumn({
                  NewFields({
                      {"txtBoxEstFlowRate", "Estimated Flow Rate:"},
                      {"txtBoxMeasuredFlowRate", "Measured Flow Rate:"},
                      {"txtBoxEstimatedPressure", "Estimated Pressure:"},
                      {"txtBoxMeasuredPressure", "Measured Pressure:"},
                      {"chkBoxObservedLeaks", "Leaks Observed"},
                  }),
              })},
             NewFields({{"txtBoxSystemComments", "Comments:", "System Comments:"}})});
}

void SolidSetDataDialog::AddTestPage() {
    QWidget* entries = NewColumn({
        NewFieldsToFill({
            {"txtBoxDateofTest", "Date of Test:"},
            {"ComboOperatingTimes", "Operation Times:"},
            {"txtBoxDuration", "Duration of Test (minutes):"},
            {"txtBoxGuageDiameter", "Rain Gauge Diameter (cm):"},
            {"txtBoxNumberX", "Number Gauges (X Axis):"},
            {"txtBoxNumberY", "Number Gauges (Y Axis):"},
        }),
        NewTips(),
    });
    AddPage({"&Test Data", {entries, NewGrid()}});
}

} // namespace orvel::ui
