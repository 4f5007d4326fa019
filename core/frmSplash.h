// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/FormView.h"

namespace orvel {

// The splash window, shown while the program starts.
class frmSplash {
public:
    // The view must outlive the window.
    explicit frmSplash(FormView& ofWindow) : view(ofWindow) {}

    void Form_Load();
    void imgLogo_Click() {} // kept: nothing more

private:
    FormView& view;
};

} // namespace orvel
