// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QLabel>

namespace orvel::ui {

[[nodiscard]] QIcon ProgramIcon();

// A label "imgLogo" with the program's picture, of that size in logical pixels.
[[nodiscard]] QLabel* NewLogo(int size);

// A label "lblTitle" in large letters.
[[nodiscard]] QLabel* NewTitle();

} // namespace orvel::ui
