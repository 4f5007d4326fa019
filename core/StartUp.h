// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"
#include "core/ProgramWindows.h"

#include <string>

namespace orvel {

// The time of day in the 12-hour form, whatever the locale: "3:04:05 PM".
[[nodiscard]] std::string ClockText(const DateTime& time);

// Waits by the seconds of the clock text while window events are handled: from second s to second s + n, or
// to s + 2n - 60 when s + n is greater than 60. kept: that target is mostly reached at once, and the target
// 60 never. False when the program is to end.
[[nodiscard]] bool Pause(int n);

// Shows the splash window, pauses for 2, shows the main window, unloads the splash window. False when the
// program is to end before the main window is shown.
[[nodiscard]] bool StartUp(ProgramWindows& windows);

} // namespace orvel
