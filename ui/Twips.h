// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

// Lengths of the logic's windows: 15 twips to a logical pixel.
namespace orvel::ui {

inline constexpr int kTwipsPerPixel = 15;

[[nodiscard]] inline float ToTwips(int pixels) {
    return static_cast<float>(pixels * kTwipsPerPixel);
}

[[nodiscard]] inline int ToPixels(double twips) {
    return static_cast<int>(std::lround(twips / kTwipsPerPixel));
}

} // namespace orvel::ui
