// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Printing.h"

#include <cstddef>
#include <cstdint>

namespace orvel {

// A rectangle on a page, in twips from the left and upper edge of what can be printed on.
struct TwipsRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    bool operator==(const TwipsRect&) const = default;
};

// What a rich-text box is to draw: the part of its text, and where.
struct FormatRange {
    static constexpr std::ptrdiff_t kToTheEnd = -1;

    DeviceContext* context = nullptr;       // draws
    DeviceContext* targetContext = nullptr; // says how long the lines are
    TwipsRect drawing;
    TwipsRect page;
    std::ptrdiff_t first = 0; // a position in the box's text
    std::ptrdiff_t last = kToTheEnd;
};

} // namespace orvel
