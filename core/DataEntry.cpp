// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/DataEntry.h"

#include "core/ProgramState.h"

namespace orvel {

void ShowDataWindow(ProgramWindows& windows) {
    if (Program().testKind == kCenterPivot) {
        windows.ShowCenterPivotData();
    } else if (Program().testKind == kSolidSet) {
        windows.ShowSolidSetData();
    }
}

} // namespace orvel
