// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Records.h"
#include "entry/DataWindow.h"

namespace orvel {

// The data window of a center-pivot test.
class frmCenterPivotData : public DataWindow {
public:
    // Both must outlive the window.
    frmCenterPivotData(DataView& ofWindow, ProgramWindows& ofProgram);

    // Traps whatever fails; the program's record keeps what was stored, also when the dialog is cancelled.
    void mnuFileSaveAs_Click();
    void cmdBtnSaveAs_Click();
    // The distances of all 300 cups.
    void cmdBtnAutoFill_Click() override;

private:
    void FillLists() override;
    void TakeMainRecord() override;
    void PutMainRecord() override;
    std::span<std::byte> EditCopy() override;
    void LoadRest() override;
    void StoreRest() override;
    void CheckSavedTest() override;

    void StoreTravelTime(std::string_view control);
    void StoreIntakeRates();

    CenterPivotTest editCopy;
};

} // namespace orvel
