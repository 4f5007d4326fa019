// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QWidget>
#include <string>

// What must hold of the windows in which something is entered. The functions say what does not; empty for
// nothing.
namespace orvel::monkey {

// Whether typed keys go through the numeric key filter.
[[nodiscard]] bool IsNumberBox(const QLineEdit& box);

// Of a data window that waits for the user: texts within their limits, 300 numbered rows, volumes that an
// editor can have left, the editor exactly over the current cell, and only in the column of the volumes;
// lists as they were filled.
[[nodiscard]] std::string BrokenByDataWindow(const QWidget& window);

// Of the soil table.
[[nodiscard]] std::string BrokenBySoils(const QWidget& window);

} // namespace orvel::monkey
