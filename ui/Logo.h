// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QLabel>

namespace orvel::ui {

// The icon in that file of the resources. It is made once: the toolkit's cache of pictures would remember
// every one that was ever made.
[[nodiscard]] QIcon SharedIcon(const QString& file);
[[nodiscard]] QIcon ProgramIcon();

// The same for a picture of lines in one colour: in a dark theme they are light.
[[nodiscard]] QIcon LineIcon(const QString& file);

// A label "imgLogo" with the program's picture, of that size in logical pixels.
[[nodiscard]] QLabel* NewLogo(int size);

// A label "lblTitle" in large letters.
[[nodiscard]] QLabel* NewTitle();

} // namespace orvel::ui
