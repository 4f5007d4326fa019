// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/frmCenterPivotData.h"

#include "centerpivot/CenterPivotChecks.h"
#include "core/Arithmetic.h"
#include "core/EntryRules.h"
#include "core/Messages.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/TestFile.h"
#include "entry/GaugeCells.h"
#include "entry/SharedLists.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace orvel {

namespace {

constexpr auto kLength = EntryRule::Length;
constexpr auto kNumeric = EntryRule::Numeric;

constexpr std::array<EntryField, 45> kEntries = {{
    // kept: the two names look after each other, too.
    {"txtBoxClientName", kLength, "txtBoxFarmName"},
    {"txtBoxFarmName", kLength, "txtBoxClientName"},
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
    {"ComboTypeSprinkler"},
    {"txtBoxSystemAge", kLength},
    {"txtBoxSprinklerAge", kLength},
    {"txtBoxSystemComments", kLength},
    {"txtBoxDistanceToTower", kNumeric},
    {"txtBoxEstFlowRate", kNumeric},
    {"txtBoxMeasuredFlowRate", kNumeric},
    {"txtBoxEstimatedPressure", kNumeric},
    {"txtBoxMeasuredPressure", kNumeric},
    {"txtBoxEndGunArc", kNumeric},
    {"ComboOperatingTimes"},
    {"txtBoxPercentTimer", kNumeric},
    {"txtBoxTravelSpeedFeet", kNumeric},
    {"txtBoxGuageDiameter", kNumeric},
    {"txtBoxDistanceToFirstGuage", kNumeric},
    {"txtBoxGuageSpacing", kNumeric},
    {"txtBoxEndGunAcres", kNumeric},
    {"txtBoxTotalAcres", kNumeric},
    {"txtBoxDateofTest", kLength},
    {"txtBoxLengthOverhang", kNumeric},
    {"txtBoxEndGunRadius", kNumeric},
    {"txtBoxRadLastSprinkler", kNumeric},
    {"chkBoxHasEndGun"},
    {"chkBoxObservedLeaks"},
    {"chkBoxEndGunShutoff"},
    {"txtBoxTravelSpeedMinutes", kNumeric},
    {"txtBoxTravelSpeedSeconds", kNumeric},
}};
static_assert(AreInRecord(kEntries, kCenterPivotFields));

constexpr std::array kTillages = {kPromptCommonTillage, "Conventional", "Strip Till / Minimum Till",
                                  "No Till", "Other/Unknown"};
constexpr std::array kManufacturers = {
    kPromptSystemManufacturer, "Valley", "Zimmatic/Lindsay", "Reinke", "T&L", "Other", "Unknown"};
constexpr std::array kSprinklers = {kPromptTypeSprinkler,
                                    "High Angle Impact ( >23\u00B0 )",
                                    "Low Angle Impact ( <23\u00B0 )",
                                    "Spray/Rotator on Top",
                                    "Spray/Rotator on Drops",
                                    "LEPA",
                                    "Unknown"};
constexpr std::array<ComboList, 5> kLists = {{
    {"comboSoilSlope", kSoilSlopes},
    {"ComboCommonTillage", kTillages},
    {"ComboSystemManufacturer", kManufacturers},
    {"ComboOperatingTimes", kOperatingTimes},
    {"ComboTypeSprinkler", kSprinklers},
}};

constexpr std::array<GridColumn, 3> kColumns = {{
    {"Sequence", 1120},
    {"Distance Feet", 1610},
    {"Volume (cc)", 1610},
}};
constexpr GridKind kGrid = {
    .columns = kColumns, .volumeColumn = 2, .commitMask = "00", .commitsIntoAnyColumn = true};
constexpr std::array<GaugeColumn<PivotGauge>, 2> kGaugeColumns = {{
    {&PivotGauge::Footage, "", EmptyCell::ClearsSequence},
    {&PivotGauge::Volume, "00", EmptyCell::BecomesZero},
}};
constexpr int kDistanceColumn = 1;

constexpr DataWindowKind kWindow = {
    .entries = kEntries, .record = kCenterPivotFields, .lists = kLists, .optionButtons = {}, .grid = &kGrid};

} // namespace

frmCenterPivotData::frmCenterPivotData(DataView& ofWindow, ProgramWindows& ofProgram)
    : DataWindow(ofWindow, ofProgram, kWindow) {}

void frmCenterPivotData::mnuFileSaveAs_Click() {
    try {
        Store();
        const TestFileKind& kind = CurrentKind();
        const std::filesystem::path path = AskForName(kind.saveAsTitle, kind.extension, kind.filter);
        if (!path.empty() && SaveTestFileAs(path)) {
            NoteSaved();
            ShowFileName();
        }
    } catch (const RunTimeError&) {
        // Trapped, whatever failed.
        ShowFileSaveError();
    }
}

void frmCenterPivotData::cmdBtnSaveAs_Click() {
    mnuFileSaveAs_Click();
}

void frmCenterPivotData::cmdBtnAutoFill_Click() {
    const std::string firstCup = View().Text("txtBoxDistanceToFirstGuage");
    const std::string cupSpacing = View().Text("txtBoxGuageSpacing");
    const std::string question =
        "Would you like to Automatically Enter Measurements\r  First Cup = " + firstCup +
        " feet\r  Cup Spacing = " + cupSpacing + " feet\r";
    if (Ask(question, "Auto Complete Entries", Buttons::YesNoCancel) != Reply::Yes) {
        return;
    }
    std::int32_t distance = ToLong(firstCup);
    const std::int32_t spacing = ToLong(cupSpacing);
    for (int row = 1; row <= MeasurementGrid::kLastRow; ++row) {
        Grid().SetCell(row, kDistanceColumn, std::to_string(distance));
        distance = RoundToLong(static_cast<long double>(distance) + spacing);
    }
}

void frmCenterPivotData::FillLists() {
    std::vector<std::string> soils;
    for (std::size_t row = 1; row <= kSoilRows; ++row) {
        SoilIntakeRow& soil = Program().soilIntakeTable[row];
        std::string entry = std::to_string(row) + " - ";
        entry.append(soil.SoilName.TrimInPlace()).append("    (");
        entry.append(RateText(soil.MinIntake)).append(" to ");
        entry.append(RateText(soil.MaxIntake)).append(")");
        soils.push_back(entry);
    }
    View().SetList("comboSoilType", soils);
    DataWindow::FillLists();
}

void frmCenterPivotData::TakeMainRecord() {
    editCopy = Program().centerPivotTest;
}

void frmCenterPivotData::PutMainRecord() {
    Program().centerPivotTest = editCopy;
}

std::span<std::byte> frmCenterPivotData::EditCopy() {
    return AsBytes(editCopy);
}

void frmCenterPivotData::LoadRest() {
    LoadCells(editCopy.Gauges, kGaugeColumns, Grid());
}

void frmCenterPivotData::StoreRest() {
    // kept: never shown again.
    editCopy.FarmNameCopy = editCopy.FarmName.Whole();
    StoreTravelTime("txtBoxTravelSpeedMinutes");
    StoreTravelTime("txtBoxTravelSpeedSeconds");
    // kept: the row numbers go to the program's record, which the edit copy replaces, so that Sequence stays
    // what it was.
    StoreCells(Grid(), kGaugeColumns, editCopy.Gauges, Program().centerPivotTest.Gauges);
    StoreIntakeRates();
}

void frmCenterPivotData::CheckSavedTest() {
    if (!CheckCenterPivotData()) {
        TellError("Please Correct Errors Before Producing Report.", "Error in Data");
    }
}

void frmCenterPivotData::StoreTravelTime(std::string_view control) {
    if (Trim(View().Text(control)).empty()) {
        View().SetText(control, "0");
        StoreText(control);
    }
}

void frmCenterPivotData::StoreIntakeRates() {
    const std::string_view soilType = editCopy.SoilType.Trimmed();
    if (soilType.empty()) {
        return;
    }
    const int row = ToInteger(soilType.substr(0, 1));
    if (row >= 1 && row <= static_cast<int>(kSoilRows)) {
        const SoilIntakeRow& soil = Program().soilIntakeTable.at(static_cast<std::size_t>(row));
        editCopy.MinIntake = soil.MinIntake;
        editCopy.MaxIntake = soil.MaxIntake;
    }
}

} // namespace orvel
