// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/FormView.h"

namespace orvel {

// The About box.
class frmAbout {
public:
    // The view must outlive the window.
    explicit frmAbout(FormView& ofWindow) : view(ofWindow) {}

    void Form_Load();
    void cmdOK_Click();

private:
    FormView& view;
};

} // namespace orvel
