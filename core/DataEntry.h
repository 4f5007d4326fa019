// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/ProgramWindows.h"

namespace orvel {

// Shows the data window of the program's test kind; any other kind has none.
void ShowDataWindow(ProgramWindows& windows);

} // namespace orvel
