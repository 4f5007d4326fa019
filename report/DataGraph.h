// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/ColorRuns.h"

#include <string>

namespace orvel {

// Appends "Data and Graph Summary" to the report's text: a scale, one line with a bar for each cup of the
// last calculation, and one for the average. The value and bar of a cup that caught too little or too much
// are entered into the runs, at their position in the text. Draws whatever stands and raises nothing; what is
// no number is shown as "?".
void AppendDataGraph(std::string& text, ColorRunTable& runs);

} // namespace orvel
