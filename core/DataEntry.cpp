// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/DataEntry.h"

#include "core/FileNames.h"
#include "core/Messages.h"
#include "core/ProgramState.h"
#include "core/TestFile.h"

namespace orvel {

void ShowDataWindow(ProgramWindows& windows) {
    if (Program().testKind == kCenterPivot) {
        windows.ShowCenterPivotData();
    } else if (Program().testKind == kSolidSet) {
        windows.ShowSolidSetData();
    }
}

void EditOpenTest(ProgramWindows& windows) {
    if (!FileExists(CurrentFile())) {
        Tell("Please create a new file or open an existing file first", "No Data File Open");
        return;
    }
    ShowDataWindow(windows);
}

} // namespace orvel
