// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/ColorRuns.h"

#include <string>

namespace orvel {

// Appends "Percent Timer Analysis" to the report's text: for the timer settings 100, 90, ... 10 percent and
// the tested one, the hours of a full circle and the average inches applied. A mark beside the tested setting
// is entered into the runs. Appends nothing when the time of a full circle can't be computed; raises nothing.
void AppendPercentTimerTable(std::string& text, ColorRunTable& runs);

} // namespace orvel
