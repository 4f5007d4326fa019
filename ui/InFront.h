// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace orvel::ui {

// The window that a box or dialog belongs to; none before the first one is shown. A window that belongs to
// the modal one and is used beside it may be in front of it.
[[nodiscard]] QWidget* WindowInFront();

// Shows the window, also where it was minimized, in front of the others and with the focus.
void BringToFront(QWidget& window);

} // namespace orvel::ui
