// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/ColorRuns.h"

#include <string>

namespace orvel {

// Appends "Uniformity Analysis - Representative Layout" to the report's text: the depths of the last
// calculation on the test's grid, X across and Y down, with the sprinkler heads of a square or triangular
// layout. Point k is the k-th with X outside and Y inside; one behind the counted cups is blank, one behind
// the 300th is left out. Cups that caught too little or too much are entered into the runs, at their position
// in the text. Draws whatever stands; raises Type mismatch or Overflow for a number of cups along an axis
// that is no 16-bit number.
void AppendRepresentativeLayout(std::string& text, ColorRunTable& runs);

} // namespace orvel
