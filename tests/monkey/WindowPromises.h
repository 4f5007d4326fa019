// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/monkey/Hands.h"

#include <string>

namespace orvel::monkey {

// What must hold of the windows whenever an action has been handled. Says what does not; empty for nothing.
[[nodiscard]] std::string BrokenByWindows(const Hands::Typed& typed);

} // namespace orvel::monkey
