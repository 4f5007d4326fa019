// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "settings/frmSoilIntake.h"

#include "core/EntryRules.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"

namespace orvel {

void frmSoilIntake::Form_Load() {
    for (std::size_t row = 1; row <= kSoilRows; ++row) {
        const SoilIntakeRow& soil = Program().soilIntakeTable[row];
        view.SetText(SoilBox(row), std::string{soil.SoilName.Trimmed()});
        view.SetText(MinBox(row), RateText(soil.MinIntake));
        view.SetText(MaxBox(row), RateText(soil.MaxIntake));
    }
}

void frmSoilIntake::cmdBtnSave_Click() {
    for (std::size_t row = 1; row <= kSoilRows; ++row) {
        SoilIntakeRow& soil = Program().soilIntakeTable[row];
        soil.SoilName = Trim(view.Text(SoilBox(row)));
        soil.MinIntake = RateIn(MinBox(row));
        soil.MaxIntake = RateIn(MaxBox(row));
    }
    SaveSoilTable();
    view.Unload();
}

void frmSoilIntake::cmdBtnCancel_Click() {
    view.Unload();
}

void frmSoilIntake::txtBoxSoil_Change(std::size_t row) {
    const std::string text = view.Text(SoilBox(row));
    const std::string limited = LimitLength(text, decltype(SoilIntakeRow::SoilName)::Width());
    if (limited != text) {
        view.SetText(SoilBox(row), limited);
    }
}

int frmSoilIntake::RateBox_KeyPress(int key) {
    return FilterNumericKey(key);
}

std::string frmSoilIntake::SoilBox(std::size_t row) {
    return "txtBoxSoil" + std::to_string(row);
}

std::string frmSoilIntake::MinBox(std::size_t row) {
    return "txtBoxMin" + std::to_string(row);
}

std::string frmSoilIntake::MaxBox(std::size_t row) {
    return "txtBoxMax" + std::to_string(row);
}

float frmSoilIntake::RateIn(const std::string& box) const {
    try {
        return ToSingle(view.Text(box));
    } catch (const RunTimeError&) {
        // Trapped: one box that holds no number must not cost the other rows.
        return 0;
    }
}

} // namespace orvel
