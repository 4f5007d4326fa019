// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/frmSplash.h"

#include "core/Version.h"

namespace orvel {

void frmSplash::Form_Load() {
    view.SetText("lblTitle", kProgramTitle);
    view.SetText("lblVersion", VersionText());
}

} // namespace orvel
