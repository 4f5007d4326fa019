// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QWidget>

namespace orvel::ui {

// What a window manager may draw beside and above a window, in pixels.
inline constexpr int kFrameBeside = 5;
inline constexpr int kFrameAbove = 40;

// The largest size that leaves room for the window's frame on its screen.
[[nodiscard]] QSize RoomFor(const QWidget& window);

// Gives a window that has its controls the size that shows them all, or what the screen has of it.
void SizeToContent(QWidget& window);

} // namespace orvel::ui
