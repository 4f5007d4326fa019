// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QKeyEvent>

namespace orvel::ui {

inline constexpr int kNoCharacterTyped = -1;

// The character that a key enters, in the program's code page, control characters included; kNoCharacterTyped
// for a key without one and for one pressed with Ctrl, which is a shortcut.
[[nodiscard]] int TypedCharacter(const QKeyEvent& event);

// Whether Ctrl, Alt or the logo key makes a command of the key.
[[nodiscard]] bool HasCommandModifier(const QKeyEvent& event);

} // namespace orvel::ui
