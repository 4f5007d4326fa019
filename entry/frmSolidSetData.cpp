// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/frmSolidSetData.h"

#include "core/Messages.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/Text.h"
#include "entry/GaugeCells.h"
#include "entry/SharedLists.h"

#include <array>
#include <string>

namespace orvel {

namespace {

constexpr auto kLength = EntryRule::Length;
constexpr auto kNumeric = EntryRule::Numeric;

constexpr std::array<EntryField, 33> kEntries = {{
    {"txtBoxClientName", kLength},
    {"txtBoxFarmName", kLength},
    {"txtBoxOperatorName", kLength},
    {"txtBoxClientAddress", kLength},
    {"txtBoxClientCity", kLength},
    {"txtBoxClientCounty", kLength},
    {"txtBoxClientState", kLength},
    {"txtBoxClientZip", kLength},
    {"txtBoxClientPhone", kLength},
    {"txtBoxEMail", kLength},
    {"txtBoxFieldName", kLength},
    {"comboSoilType"},
    {"comboSoilSlope"},
    {"ComboCommonTillage"},
    {"txtBoxCrops", kLength},
    {"txtBoxFieldComments", kLength},
    {"txtBoxOtherComments", kLength},
    {"ComboSystemManufacturer"},
    {"txtBoxSystemComments", kLength},
    {"txtBoxSprinklerAge", kLength},
    {"txtBoxEstFlowRate", kNumeric},
    {"txtBoxMeasuredFlowRate", kNumeric},
    {"txtBoxEstimatedPressure", kNumeric},
    {"txtBoxMeasuredPressure", kNumeric},
    {"ComboOperatingTimes"},
    {"txtBoxGuageDiameter", kNumeric},
    // kept: these three and the spacing take any key.
    {"txtBoxNumberX"},
    {"txtBoxNumberY"},
    {"txtBoxTotalAcres"},
    {"txtBoxDateofTest", kLength},
    {"txtBoxSprinklerSpacing"},
    {"txtBoxDuration", kNumeric},
    {"chkBoxObservedLeaks"},
}};
static_assert(AreInRecord(kEntries, kSolidSetFields));

// kept: a list of its own and not the soil intake table.
constexpr std::array kSoils = {kPromptSoilType, "Sand",       "Loamy Sand", "Sandy Loam",
                               "Clay Loam",     "Loamy Clay", "Clay",       "Other"};
constexpr std::array kTillages = {kDefaultSolidSetTillage, "Strip Till / Minimum Till", "No Till",
                                  "Other/Unknown"};
constexpr std::array kManufacturers = {
    kPromptSprinklerManufacturer, "Rainbird", "Senninger", "Nelson", "Toro", "Other", "Unknown"};
constexpr std::array<ComboList, 5> kLists = {{
    {"comboSoilType", kSoils},
    {"comboSoilSlope", kSoilSlopes},
    {"ComboCommonTillage", kTillages},
    {"ComboSystemManufacturer", kManufacturers},
    {"ComboOperatingTimes", kOperatingTimes},
}};

constexpr std::array<std::string_view, 2> kOptionButtons = {"optBtnSquare", "optBtnTriangle"};

constexpr std::array<GridColumn, 4> kColumns = {{
    {"Sequence", 1085},
    {"X Axis", 1085},
    {"Y Axis", 1085},
    {"Volume (cc)", 1085},
}};
constexpr GridKind kGrid = {
    .columns = kColumns, .volumeColumn = 3, .commitMask = "0", .commitsIntoAnyColumn = false};
constexpr std::array<GaugeColumn<SolidSetGauge>, 3> kGaugeColumns = {{
    {&SolidSetGauge::XAxis, "", EmptyCell::ClearsSequence},
    {&SolidSetGauge::YAxis, "##", EmptyCell::BecomesZero},
    {&SolidSetGauge::Volume, "##", EmptyCell::BecomesZero},
}};
constexpr int kColumnX = 1;
constexpr int kColumnY = 2;

constexpr DataWindowKind kWindow = {.entries = kEntries,
                                    .record = kSolidSetFields,
                                    .lists = kLists,
                                    .optionButtons = kOptionButtons,
                                    .grid = &kGrid};

// kept: "choosen".
std::string Chosen(int count) {
    return std::string{kCrLf} + "You have choosen " + std::to_string(count) + ".";
}

bool IsConfirmed(int countX, int countY) {
    // kept: "Gu ages", once.
    std::string question = "Would you like to Automatically Enter Grid Setup";
    question.append(kCrLf).append("  Number Gu ages in X Axis = ").append(std::to_string(countX));
    question.append(kCrLf).append("  Number Guages in Y Axis = ").append(std::to_string(countY));
    return Ask(question, "Auto Complete Entries", Buttons::YesNoCancel) == Reply::Yes;
}

} // namespace

frmSolidSetData::frmSolidSetData(DataView& ofWindow, ProgramWindows& ofProgram)
    : DataWindow(ofWindow, ofProgram, kWindow) {}

void frmSolidSetData::cmdBtnAutoFill_Click() {
    constexpr int kMostX = 12;
    const std::string textX = View().Text("txtBoxNumberX");
    const std::string textY = View().Text("txtBoxNumberY");
    if (textX.empty() || textY.empty()) {
        Tell("You must first enter values for X and Y axis.", "Entry Error");
        return;
    }
    const int countX = ToInteger(textX);
    if (countX > kMostX) {
        Tell("The maximum number of data points on the X axis is 12" + Chosen(countX), "Input Error");
        return;
    }
    if (countX < 1) {
        Tell("The minimum number of data points on the X axis is 1" + Chosen(countX), "Input Error");
        return;
    }
    const int countY = ToInteger(textY);
    if (countY < 1) {
        Tell("The minimum number of data points on the Y axis is 1" + Chosen(countY) + std::string{kCrLf} +
                 "Please correct entries....",
             "Input Error");
        return;
    }
    const int points = countX * countY;
    if (points > MeasurementGrid::kLastRow) {
        Tell("The maximum number of data points is 300" + Chosen(points), "Input Error");
        return;
    }
    if (IsConfirmed(countX, countY)) {
        FillPositions(countX, countY);
    }
}

void frmSolidSetData::FillPositions(int countX, int countY) {
    for (int row = 1; row <= MeasurementGrid::kLastRow; ++row) {
        Grid().SetCell(row, kColumnX, "");
        Grid().SetCell(row, kColumnY, "");
    }
    int row = 1;
    for (int x = 1; x <= countX; ++x) {
        for (int y = 1; y <= countY; ++y) {
            Grid().SetCell(row, kColumnX, std::to_string(x));
            Grid().SetCell(row, kColumnY, std::to_string(y));
            ++row;
        }
    }
}

void frmSolidSetData::TakeMainRecord() {
    editCopy = Program().solidSetTest;
}

void frmSolidSetData::PutMainRecord() {
    Program().solidSetTest = editCopy;
}

std::span<std::byte> frmSolidSetData::EditCopy() {
    return AsBytes(editCopy);
}

void frmSolidSetData::LoadRest() {
    View().SetChecked("optBtnSquare", editCopy.Layout.Whole() == "S");
    View().SetChecked("optBtnTriangle", editCopy.Layout.Whole() == "T");
    LoadCells(editCopy.Gauges, kGaugeColumns, Grid());
}

void frmSolidSetData::StoreRest() {
    if (View().IsChecked("optBtnSquare") == true) {
        editCopy.Layout = "S";
    } else if (View().IsChecked("optBtnTriangle") == true) {
        editCopy.Layout = "T";
    }
    StoreCells(Grid(), kGaugeColumns, editCopy.Gauges, editCopy.Gauges);
}

} // namespace orvel
