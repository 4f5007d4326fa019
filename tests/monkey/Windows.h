// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/monkey/Progress.h"

#include <QPoint>
#include <QWidget>
#include <string>
#include <vector>

// The windows on the screen. Lists are in an order that does not change from run to run.
namespace orvel::monkey {

[[nodiscard]] WindowKind KindOf(const QWidget& window);

// Those that are shown, in the order of their making; no tool tips.
[[nodiscard]] std::vector<QWidget*> ShownWindows();

// Those of them that no modal window blocks.
[[nodiscard]] std::vector<QWidget*> UsableWindows();

// Whether the window is the owner or belongs to it, be it through others.
[[nodiscard]] bool BelongsTo(const QWidget* window, const QWidget* owner);

// What can be pointed at.
[[nodiscard]] std::vector<QWidget*> ShownControls(const QWidget& window);

// The commands of its menu bar.
[[nodiscard]] std::vector<QAction*> Commands(const QWidget& window);

// "frmMain/cmdBtnOpenFile"; the name of its class for what has no name.
[[nodiscard]] std::string NameOf(const QWidget& control);

} // namespace orvel::monkey
