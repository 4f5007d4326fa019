// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "entry/MeasurementGrid.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvel {

// Everything that stands in the controls of a data window, also what no record could hold. All texts are
// UTF-8, so that no character depends on the code page.
struct EntryState {
    std::map<std::string, std::string> texts; // of text boxes and combo boxes
    std::map<std::string, bool> checks;       // of check boxes and option buttons; a greyed one is left out
    // Rows 1 to 300 without the fixed column.
    std::vector<std::vector<std::string>> cells;
    // What the open editor holds, and where.
    std::optional<CellEdit> edit;

    bool operator==(const EntryState&) const = default;
};

// What a recovery file says.
struct RecoveredEntries {
    std::string testKind; // as in ProgramState
    std::string written;  // "2026-11-22 15:04:05", local time
    EntryState state;

    bool operator==(const RecoveredEntries&) const = default;
};

// JSON:
//
//     {
//      "orvel recovery": 1,
//      "kind": "centerPivot",
//      "written": "2026-11-22 15:04:05",
//      "texts": {"txtBoxClientName": "A. Grower", ...},
//      "checks": {"chkBoxHasEndGun": true, ...},
//      "cells": [["10", "07"], ...],            300 rows
//      "edit": {"row": 2, "column": 2, "text": "1"}   or null
//     }
[[nodiscard]] std::string RecoveryText(const RecoveredEntries& entries);
// Nothing when the text is no such file.
[[nodiscard]] std::optional<RecoveredEntries> ReadRecoveryText(std::string_view text);

} // namespace orvel
