// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/DataDialog.h"

namespace orvel::ui {

class CenterPivotDataDialog : public DataDialog {
public:
    // `windows` must outlive the window.
    CenterPivotDataDialog(QWidget* parent, ProgramWindows& windows);
};

} // namespace orvel::ui
