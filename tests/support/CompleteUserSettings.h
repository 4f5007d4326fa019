// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Records.h"

namespace orvel::testing {

// The settings of a user who has filled in everything; no default directory.
inline UserSettings CompleteUserSettings() {
    UserSettings settings;
    settings.Name = "Ida Lund";
    settings.Company = "County Extension Service";
    settings.Address = "4 Court Square";
    settings.CityStateZip = "Alder Creek, XX 00000";
    settings.Phone = "555-0100";
    settings.EMail = "ida@extension.example";
    return settings;
}

} // namespace orvel::testing
