// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/DataDialog.h"

namespace orvel::ui {

class SolidSetDataDialog : public DataDialog {
public:
    // `windows` must outlive the window.
    SolidSetDataDialog(QWidget* parent, ProgramWindows& windows);
};

} // namespace orvel::ui
