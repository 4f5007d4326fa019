// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Printing.h"

#include <QPaintDevice>
#include <QPainter>

namespace orvel::ui {

// A page of a print job. Its painter's origin is the corner from which lengths count.
struct PageContext : DeviceContext {
    QPaintDevice* device = nullptr; // says how long the lines are
    QPainter* painter = nullptr;    // none on a page that the user did not choose
};

} // namespace orvel::ui
