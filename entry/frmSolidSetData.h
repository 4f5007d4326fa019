// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Records.h"
#include "entry/DataWindow.h"

namespace orvel {

// The data window of a solid-set test. kept: it has no Save As and runs no data check.
class frmSolidSetData : public DataWindow {
public:
    // Both must outlive the window.
    frmSolidSetData(DataView& ofWindow, ProgramWindows& ofProgram);

    // The positions of the cups, Y running fastest.
    void cmdBtnAutoFill_Click() override;

private:
    void TakeMainRecord() override;
    void PutMainRecord() override;
    std::span<std::byte> EditCopy() override;
    void LoadRest() override;
    void StoreRest() override;

    void FillPositions(int countX, int countY);

    SolidSetTest editCopy;
};

} // namespace orvel
