// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/frmAbout.h"

#include "core/Version.h"

namespace orvel {

void frmAbout::Form_Load() {
    view.SetText("lblTitle", kProgramTitle);
    view.SetText("lblVersion", VersionText());
    view.SetText("lblDescription", "Evaluates field irrigation systems from catch-can tests.");
    view.SetText("lblLicence", "Copyright 2026 The ORVEL developers. MIT licence.");
}

void frmAbout::cmdOK_Click() {
    view.Unload();
}

} // namespace orvel
